#include "shell/frmAbout.h"

#include "shell/Version.h"
#include "store/Text.h"

namespace kontorwerk {
namespace {

constexpr std::string_view kSystemInformationTool = "MSINFO32.EXE";

}  // namespace

frmAbout::frmAbout(Context& context) : Screen(context.desktop, "frmAbout") {
  cmdSysInfo.OnClick = [&context] { context.platform.Open(kSystemInformationTool); };
  cmdOK.OnClick = [this] { Unload(); };
}

void frmAbout::OnLoad() {
  lblTitle.SetCaption(kProgramName);
  lblVersion.SetCaption(Concat("Version ", VersionText(kProgramVersion)));
}

}  // namespace kontorwerk
