#include "importers/svg/SvgTextConverter.hpp"

#include "importers/svg/SvgArtConverter.hpp"
#include "importers/svg/SvgImportFailure.hpp"
#include "importers/svg/SvgLength.hpp"
#include "importers/svg/SvgNumbers.hpp"
#include "importers/svg/SvgShapes.hpp"
#include "importers/svg/SvgTextLayout.hpp"

#include <algorithm>
#include <optional>

namespace zm::host::svg {

namespace {

using document::Art;

// Characters (UTF-8 code points) of a text.
std::size_t CountCharacters(const std::string& text) {
    return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), [](char c) {
        return (static_cast<unsigned char>(c) & 0xC0) != 0x80;
    }));
}

// XML's default white space handling: line ends go, tabs become blanks, blanks collapse.
std::string CollapseWhiteSpace(std::string_view text, bool& lastWasBlank) {
    std::string out;
    for (char c : text) {
        if (c == '\n' || c == '\r') {
            continue;
        }
        if (c == '\t') {
            c = ' ';
        }
        if (c == ' ' && lastWasBlank) {
            continue;
        }
        lastWasBlank = c == ' ';
        out += c;
    }
    return out;
}

class RunCollector {
public:
    RunCollector(SvgArtConverter& converter, const Affine& toModel)
        : converter_(converter), toModel_(toModel) {}

    void Collect(pugi::xml_node element, int depth) {
        if (depth > kMaxNesting) {
            throw SvgImportFailure("elements nested too deeply");
        }
        layout_.Open({Coordinates(element, "x"), Coordinates(element, "y"),
                      Coordinates(element, "dx"), Coordinates(element, "dy")});
        for (pugi::xml_node child : element.children()) {
            if (child.type() == pugi::node_pcdata || child.type() == pugi::node_cdata) {
                AddRun(element, child.value());
            } else if (child.type() == pugi::node_element) {
                auto name = converter_.Context().names.SvgName(child);
                if (name == "tspan" || name == "textPath" || name == "a") {
                    Collect(child, depth + 1);
                }
            }
        }
        layout_.Close();
    }

    // Where the characters land, in user units; none without characters.
    std::optional<TextLayout::Box> Bounds() const { return layout_.Bounds(); }

    std::vector<document::TextRun> Finish() {
        // Leading and trailing blanks of the whole text are not drawn.
        while (!runs_.empty()) {
            auto& first = runs_.front().text;
            if (!first.empty() && first.front() == ' ') first.erase(0, 1);
            if (!first.empty()) break;
            runs_.erase(runs_.begin());
        }
        while (!runs_.empty()) {
            auto& last = runs_.back().text;
            if (!last.empty() && last.back() == ' ') {
                last.pop_back();
                layout_.DropLastCharacter();
            }
            if (!last.empty()) break;
            runs_.pop_back();
        }
        return std::move(runs_);
    }

private:
    void AddRun(pugi::xml_node owner, std::string_view raw) {
        std::string text = CollapseWhiteSpace(raw, lastWasBlank_);
        if (text.empty()) {
            return;
        }
        const ComputedStyle& style = converter_.Context().styles.For(owner);
        document::TextRun run;
        run.text = std::move(text);
        run.fontFamily = style.fontFamily;
        run.weight = style.fontWeight;
        run.fontStyle = style.fontStyle;
        run.fontSize = ClampCoordinate(style.fontSize * toModel_.LengthScale());
        run.paint = converter_.PaintStyle(owner, toModel_);
        layout_.AddCharacters(CountCharacters(run.text), style.fontSize, style.textAnchor);
        runs_.push_back(std::move(run));
    }

    static std::vector<double> Coordinates(pugi::xml_node element, const char* name) {
        std::vector<double> values = ParseNumberList(element.attribute(name).value());
        for (double& value : values) {
            value = ClampCoordinate(value);
        }
        return values;
    }

    SvgArtConverter& converter_;
    Affine toModel_;
    std::vector<document::TextRun> runs_;
    TextLayout layout_{0, 0};
    bool lastWasBlank_ = true;  // so the text's leading blank goes
};

// The first number of a coordinate list attribute ("10 20 30" -> 10).
std::optional<double> FirstCoordinate(pugi::xml_node element, const char* name) {
    auto numbers = ParseNumberList(element.attribute(name).value());
    if (numbers.empty()) {
        return std::nullopt;
    }
    return ClampCoordinate(numbers.front());
}

pugi::xml_node FindTextPath(SvgArtConverter& converter, pugi::xml_node text) {
    for (pugi::xml_node child : text.children()) {
        if (converter.Context().names.SvgName(child) == "textPath") {
            return child;
        }
    }
    return {};
}

}  // namespace

std::unique_ptr<Art> ConvertText(SvgArtConverter& converter, pugi::xml_node element,
                                 const Affine& toModel, int depth) {
    ImportContext& context = converter.Context();
    const ComputedStyle& style = context.styles.For(element);
    auto art = converter.NewArt(document::ArtType::TextFrame, element);
    auto frame = std::make_unique<document::TextFrame>();

    double x = FirstCoordinate(element, "x").value_or(0);
    double y = FirstCoordinate(element, "y").value_or(0);
    if (pugi::xml_node textPath = FindTextPath(converter, element)) {
        pugi::xml_node target = context.Lookup(context.names.HrefId(textPath));
        if (auto path = target ? converter.FramePath(target, toModel) : nullptr) {
            frame->kind = document::TextFrameKind::OnPath;
            frame->framePath = std::move(path);
        }
    } else if (!style.shapeInside.empty()) {
        pugi::xml_node target = context.Lookup(style.shapeInside);
        if (auto shape = target ? converter.FramePath(target, toModel) : nullptr) {
            frame->kind = document::TextFrameKind::Area;
            frame->framePath = std::move(shape);
        }
    } else if (style.inlineSize) {
        // One line box: from the baseline up by the font size, inline-size wide.
        auto box = converter.NewArt(document::ArtType::Path, pugi::xml_node());
        box->path = ToPathGeometry(
            RectOutline(x, y - style.fontSize, *style.inlineSize, style.fontSize, 0, 0), toModel);
        frame->kind = document::TextFrameKind::Area;
        frame->framePath = std::move(box);
    }

    RunCollector collector(converter, toModel);
    collector.Collect(element, depth);
    frame->runs = collector.Finish();

    if (auto box = collector.Bounds()) {
        art->bounds = TransformedBounds(toModel, box->left, box->top, box->right, box->bottom);
    } else {
        art->bounds = TransformedBounds(toModel, x, y - style.fontSize, x, y);  // empty text
    }
    art->style = converter.PaintStyle(element, toModel);
    art->text = std::move(frame);
    return art;
}

}  // namespace zm::host::svg
