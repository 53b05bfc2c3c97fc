#include "toolkit/qt/fontrules.h"

#include <fontconfig/fontconfig.h>

#include <cstdlib>

namespace brindor::toolkit::qt {

namespace {

// Letters are shaped as Debian's rules have it.
constexpr const char* rules = R"(<?xml version="1.0"?>
<!DOCTYPE fontconfig SYSTEM "urn:fontconfig:fonts.dtd">
<fontconfig>
  <dir>/usr/share/fonts</dir>
  <dir>/usr/local/share/fonts</dir>
  <dir prefix="xdg">fonts</dir>
  <dir>~/.fonts</dir>
  <cachedir>/var/cache/fontconfig</cachedir>
  <cachedir prefix="xdg">fontconfig</cachedir>
  <match target="pattern">
    <edit name="hintstyle" mode="append"><const>hintslight</const></edit>
    <edit name="lcdfilter" mode="append"><const>lcddefault</const></edit>
  </match>
  <include ignore_missing="yes" prefix="xdg">fontconfig/conf.d</include>
  <include ignore_missing="yes" prefix="xdg">fontconfig/fonts.conf</include>
</fontconfig>
)";

} // namespace

void usefontrules()
{
    if (std::getenv("FONTCONFIG_FILE") != nullptr || std::getenv("FONTCONFIG_PATH") != nullptr) {
        return;
    }
    FcConfig* const config = FcConfigCreate();
    const bool read =
        FcConfigParseAndLoadFromMemory(config, reinterpret_cast<const FcChar8*>(rules), FcFalse) == FcTrue;
    if (read && FcConfigBuildFonts(config) == FcTrue && FcConfigGetFonts(config, FcSetSystem)->nfont > 0) {
        FcConfigSetCurrent(config);
    }
    FcConfigDestroy(config); // what is in force has a hold of its own
}

} // namespace brindor::toolkit::qt
