// What "About" says.
#pragma once

#include "settings/settings.h"

namespace lumora_pen {

struct AboutFacts {
    BackEndName backEnd = BackEndName::Composition;
    Settings settings;
    std::string settingsFile;
    std::string libraryVersion;              // empty when its file does not say it
    std::vector<std::string> unreadablePens; // by their names
    std::vector<std::string> unmappedPens;   // the system does not say to which monitor they belong
};

std::string AboutText(const AboutFacts& facts);

} // namespace lumora_pen
