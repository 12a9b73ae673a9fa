// The text of "About".
#include "program/about_text.h"

#include "lumora/version.h"

namespace lumora_pen {

namespace {

constexpr std::array<std::string_view, 3> BackEndTexts = {"Composition", "Direct2D", "GDI"};

std::string OwnVersion()
{
    return std::to_string(LUMORA_VERSION_MAJOR) + '.' + std::to_string(LUMORA_VERSION_MINOR) + '.' +
           std::to_string(LUMORA_VERSION_BUILD) + '.' + std::to_string(LUMORA_VERSION_REVISION);
}

} // namespace

std::string AboutText(const AboutFacts& facts)
{
    std::string text = "Lumora Pen " + OwnVersion() + '\n';
    text += "Library " + (facts.libraryVersion.empty() ? "of unknown version" : facts.libraryVersion) +
            ", drawing by " + std::string(BackEndTexts[static_cast<std::size_t>(facts.backEnd)]) + "\n\n";
    text += "Write with a pen, or hold " + TextOf(facts.settings.hold) + " and move the mouse.\n";
    const Hotkey& board = facts.settings.keys[static_cast<std::size_t>(KeyCommand::Board)];
    if (board.key != 0) {
        text += TextOf(board) + " begins and ends the Board.\n";
    }
    text += "\nSettings: " + facts.settingsFile + '\n';
    for (const std::string& pen : facts.unreadablePens) {
        text += "\nThe reports of \"" + pen +
                "\" cannot be read: it writes on the Board; in Trail only the mouse does.\n";
    }
    for (const std::string& pen : facts.unmappedPens) {
        text += "\nThe system does not say to which monitor \"" + pen +
                "\" belongs: in Trail it writes on all of them together.\n";
    }
    return text;
}

} // namespace lumora_pen
