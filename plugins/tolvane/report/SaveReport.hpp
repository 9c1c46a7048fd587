#pragma once

namespace tolvane {

class TolvanePanel;

// Asks the user where to save the whole report (the host's save dialog, proposing the
// document's name followed by " Info.txt"), assembles it into the panel's save text from
// the survey as it stands, and writes it as single-byte text with "\r\n" line ends. Silent:
// a cancelled dialog or a failing step writes nothing and shows nothing.
void SaveReport(TolvanePanel& panel);

}  // namespace tolvane
