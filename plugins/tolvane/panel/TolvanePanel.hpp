#pragma once

#include "report/ReportText.hpp"

#include <ostcore/Rect.hpp>
#include <ostui/FlyoutMenu.hpp>
#include <ostui/ListBox.hpp>
#include <ostzm/ZMUIBasePanel.hpp>

#include <zelmora/ZMTypes.h>

namespace tolvane {

// The Document Info panel: the report of one category as one block of wrapped text in a
// scrolling list, and a flyout menu that chooses the category, switches "Selection Only"
// and saves. Owned through Globals::panel.
class TolvanePanel : public ostzm::ZMUIBasePanel {
public:
    // Throws zm::Error(ZM_ERR_PARAMETER) when the layout has no list or there is no flyout
    // menu, and what the toolkit throws for a missing resource.
    explicit TolvanePanel(ZMPluginRef plugin);
    ~TolvanePanel() override;

    void OnFlyoutMenuCommand(int id) override;
    void UpdateFlyoutMenu() override;
    void OnResize() override;
    void OnVisibilityChanged(bool shown) override;

    // Surveys again and rewrites the report of the current category.
    void Refresh();

    const ReportText& Report() const { return report_; }
    // Save assembles the whole report into these texts.
    ReportText& MutableReport() { return report_; }
    // Removes the report's item from the list, as before a fill.
    void EmptyList();

private:
    void Initialize();
    // The flyout's "&Save...": a full survey, the report file, then the panel as before.
    void Save();
    void TakeTextArea();
    // Empties both texts and the list, then writes the current category's report.
    void FillReport();
    // The report as one wrapped text item of the list.
    void ShowReport();

    ostcore::Rect textArea_;
    ReportText report_;
    ostui::FlyoutMenuPtr flyoutMenu_;
    ostui::ListBoxPtr list_;
};

}  // namespace tolvane
