#include "panel/TolvanePanel.hpp"

#include "panel/CategoryReport.hpp"
#include "panel/PanelCategories.hpp"
#include "panel/PanelCreationOptions.hpp"
#include "report/Error.hpp"
#include "report/HostString.hpp"
#include "report/SaveReport.hpp"
#include "shell/AppContext.hpp"
#include "shell/Globals.hpp"
#include "shell/SuiteSet.hpp"
#include "survey/ArtWalk.hpp"
#include "survey/SurveyRecord.hpp"

#include <ostui/ListItem.hpp>
#include <ostui/ScrollBar.hpp>
#include <ostui/StaticText.hpp>

#include <cmath>

namespace tolvane {

namespace {

constexpr int kLayoutId = 16002;
constexpr const char* kListId = "TolvaneList";
// Room kept beside the text for the list's vertical scroll bar and a little air.
constexpr float kTextAreaInset = 5.0f;

}  // namespace

TolvanePanel::TolvanePanel(ZMPluginRef plugin)
    : ostzm::ZMUIBasePanel(plugin, kLayoutId, PanelCreationOptions(), 0) {
    Initialize();
}

TolvanePanel::~TolvanePanel() {
    if (list_) {
        list_->RemoveAllItems();
    }
    list_.reset();
    flyoutMenu_.reset();
    report_.Reset();
}

void TolvanePanel::Initialize() {
    flyoutMenu_ = GetFlyoutMenu();
    if (!flyoutMenu_) {
        throw zm::Error(ZM_ERR_PARAMETER);
    }
    list_ = GetView()->FindChildAs<ostui::ListBox>(kListId);
    if (!list_) {
        throw zm::Error(ZM_ERR_PARAMETER);
    }
    list_->SetSelectOnMouseUp(false);
    list_->SetFocusIndication(false);
    list_->SetEmptySelectionAllowed(true);
    list_->SetDeselectAllOnEmptyClick(true);
    list_->SetKeyboardSelection(false);
    // The report is read, not picked from: a row that gets selected is let go at once.
    list_->ItemSelected.Connect([](ostui::ListBox& list, const ostui::ListItemPtr&) {
        if (ostui::ListItemPtr selected = list.FirstSelectedItem()) {
            list.DeselectItem(selected);
        }
    });
    report_.saveText.Assign(nullptr);
    TakeTextArea();

    if (gGlobals->mode == 0) {
        gGlobals->mode = kModeDocument;
    }
    flyoutMenu_->EnableItem(gGlobals->mode, true);
    flyoutMenu_->SetItemDefault(gGlobals->mode, true);

    if (MakeSurvey() != ZM_ERR_NONE) {
        return;  // the alert has been shown; the panel stays empty
    }
    ResetSurvey(false);
    FillReport();
}

void TolvanePanel::TakeTextArea() {
    textArea_ = list_->Frame();
    textArea_.x = 0.0f;
    textArea_.width -= ostui::kVerticalScrollBarWidth + kTextAreaInset;
}

void TolvanePanel::EmptyList() { list_->RemoveAllItems(); }

void TolvanePanel::FillReport() {
    report_.Reset();
    EmptyList();
    // A failing writer leaves what it wrote so far; the panel shows that much.
    WriteCategoryReport(report_, gGlobals->mode);
    list_->ScrollToMakeVisible({0.0f, 0.0f, list_->Frame().width, 2.0f});
}

void TolvanePanel::ShowReport() {
    if (!list_ || textArea_.width <= 0.0f || textArea_.height <= 0.0f) {
        return;
    }
    auto text = boost::intrusive_ptr<ostui::StaticText>(new ostui::StaticText(
        {}, ToBytes(report_.displayText.Get(), ZM_ENCODING_UTF8), GetThemeFont()));
    float height = text->MeasureHeight(textArea_.width - 2.0f);
    text->SetFrame({0.0f, 0.0f, textArea_.width, std::ceil(height) + 3.0f});
    list_->AppendItem(ostui::ListItemPtr(new ostui::ListItem(text)));
}

void TolvanePanel::Refresh() {
    ScopedAppContext context;
    if (gSurvey != nullptr) {
        ResetSurvey(true);
        // The Document category reads the document's settings only.
        if (gGlobals->mode != kModeDocument) {
            RunSurvey();
        }
    }
    FillReport();
    ShowReport();
    list_->ScrollToMakeVisible({0.0f, 0.0f, 15.0f, 15.0f});
    UpdateFlyoutMenu();
}

void TolvanePanel::UpdateFlyoutMenu() {
    ZMDocumentHandle document = nullptr;
    bool hasDocument = sDocumentSuite->GetDocument(&document) != ZM_ERR_NO_DOCUMENT;
    for (int item = kItemSelectionOnly; item <= kItemSave; ++item) {
        flyoutMenu_->EnableItem(item, hasDocument);
    }
    list_->SetEnabled(hasDocument);
    flyoutMenu_->CheckItem(kItemSelectionOnly, gGlobals->selectionOnly != 0);
    flyoutMenu_->CheckItem(gGlobals->mode == 0 ? kModeDocument : gGlobals->mode, true);
}

void TolvanePanel::OnFlyoutMenuCommand(int id) {
    ScopedAppContext context;
    if (id == kItemSelectionOnly) {
        gGlobals->selectionOnly = gGlobals->selectionOnly != 0 ? 0 : 1;
        flyoutMenu_->CheckItem(kItemSelectionOnly, gGlobals->selectionOnly != 0);
        Refresh();
    } else if (id >= kModeDocument && id <= kModeFontDetails) {
        flyoutMenu_->CheckItem(gGlobals->mode, false);
        gGlobals->mode = static_cast<int16_t>(id);
        flyoutMenu_->CheckItem(id, true);
        Refresh();
    } else if (id == kItemSave) {
        Save();
    }
    // Item 0 and items beyond the menu do nothing.
}

void TolvanePanel::Save() {
    // Saving surveys everything, whatever the category shows, and the flag must not outlive
    // the command even when a step throws.
    gGlobals->saving = 1;
    try {
        if (gSurvey != nullptr) {
            ResetSurvey(true);
            RunSurvey();
        }
        SaveReport(*this);
        Refresh();
    } catch (...) {
        // Nothing of a failed save is shown; the panel keeps what it had.
    }
    gGlobals->saving = 0;
}

void TolvanePanel::OnResize() {
    list_->RemoveAllItems();
    ostzm::ZMUIBasePanel::OnResize();
    TakeTextArea();
    Refresh();
}

void TolvanePanel::OnVisibilityChanged(bool shown) {
    ScopedAppContext context;
    sMenuSuite->CheckItem(gGlobals->menuItem, shown ? 1 : 0);
    if (shown) {
        Refresh();
    }
}

}  // namespace tolvane
