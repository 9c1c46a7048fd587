#pragma once

#include "document/ArtContent.hpp"
#include "document/Geometry.hpp"
#include "document/Paint.hpp"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace zm::host::document {

struct GraphicStyle;
struct Symbol;

// The host's numeric art-type codes, as the art suite reports them.
enum class ArtType : int16_t {
    Unknown = 0,
    Group = 1,
    Path = 2,
    CompoundPath = 3,
    Placed = 7,
    Raster = 9,
    PluginGroup = 10,
    Mesh = 11,
    TextFrame = 12,
    SymbolInstance = 13,
    ForeignObject = 14,
    Chart = 16,
};

// Attribute bits.
inline constexpr uint32_t kArtSelected = 1u << 0;
inline constexpr uint32_t kArtCompoundMember = 1u << 14;  // 0x4000

// One object of the art tree. Children are a group's or a compound path's members; a plug-in
// group holds exactly one child, its result group, whose children are what the plug-in made.
// Definitions (symbols, patterns, masks, clip path sources) live outside the tree.
class Art {
public:
    explicit Art(ArtType type, std::string id = {});
    ~Art();
    Art(const Art&) = delete;
    Art& operator=(const Art&) = delete;

    ArtType Type() const { return type_; }
    const std::string& Id() const { return id_; }
    uint32_t Attributes() const { return attributes_; }
    Art* Parent() const { return parent_; }
    const std::vector<std::unique_ptr<Art>>& Children() const { return children_; }

    // Whether an art object lives at this address. Handles that plug-ins hand back are only
    // addresses; this lets the host refuse one that names no art instead of reading through it.
    static bool IsLive(const void* address);

    // Adopts child as the last member; a compound path's members carry kArtCompoundMember.
    Art& Add(std::unique_ptr<Art> child);
    // The result group of a plug-in group, made on first use.
    Art& ResultGroup();

    // Selecting an object selects everything it holds, as selecting a group does on screen.
    void SetSelected(bool selected);
    bool IsSelected() const { return (attributes_ & kArtSelected) != 0; }

    // What the object is and how it looks. Which members matter depends on the type; the
    // others keep their defaults.
    std::string name;                      // label or id, for people
    PathGeometry path;                     // a path's one subpath
    PathStyle style;                       // fill, stroke and clip flag of paths and meshes
    BlendStyle blend;
    GraphicStyle* graphicStyle = nullptr;  // null: an anonymous style
    std::unique_ptr<Art> opacityMask;      // the mask art (a group), outside the layers
    bool clipGroup = false;                // a group whose clipping paths clip the rest
    std::string pluginName;                // the plug-in that made a plug-in group
    bool graph = false;                    // unknown art that is a graph
    std::unique_ptr<TextFrame> text;       // a text frame's content
    std::unique_ptr<Image> image;          // placed and raster art
    Symbol* symbol = nullptr;              // the symbol a symbol instance shows
    std::vector<Color> meshColors;         // a mesh's colours, in order
    std::unique_ptr<ForeignContent> foreign;
    std::optional<LiveShape> liveShape;
    // Bounds of art without path geometry of its own (images, text, foreign objects, symbol
    // instances: the definition where the instance places it).
    std::optional<Rect> bounds;

private:
    ArtType type_;
    std::string id_;
    uint32_t attributes_ = 0;
    Art* parent_ = nullptr;
    std::vector<std::unique_ptr<Art>> children_;
};

// A layer is a named top-level group.
struct Layer {
    std::string name;
    std::unique_ptr<Art> root = std::make_unique<Art>(ArtType::Group);
};

}  // namespace zm::host::document
