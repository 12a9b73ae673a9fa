// The report of a self-test.
#include "selftest_report.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <string_view>

namespace lumora::replay {

namespace {

// What was seen under Wine 8, which has no composition engine. The stroke is pure red on green; GDI's overlay
// is three quarters opaque where the desktop blends windows, which a bare X server does not.
struct SeenUnderWine {
    std::string_view backEnd;
    std::string_view ink;
    std::string_view colour;
    std::string_view end;
    std::string_view clicks;
};

constexpr std::array UnderWine = {
    SeenUnderWine{"composition", "none", "-", "gone", "reach what is below"},
    SeenUnderWine{"d2d", "all", "FF0000", "gone", "reach what is below"},
    SeenUnderWine{"gdi", "all", "FF0000", "gone", "reach what is below"},
};

std::string Milliseconds(const std::optional<double>& time)
{
    if (!time) {
        return "-";
    }
    std::array<char, 32> text{};
    static_cast<void>(std::snprintf(text.data(), text.size(), "%.1f ms", *time));
    return text.data();
}

class Report {
public:
    void Line(std::string_view name, std::string_view value)
    {
        constexpr std::size_t Column = 22;
        text += "  ";
        text += name;
        text.append(name.size() < Column ? Column - name.size() : 1, ' ');
        text += value;
        text += '\n';
    }

    void Compare(std::string_view name, const std::string& value, std::string_view expected)
    {
        if (value == expected) {
            Line(name, value);
            return;
        }
        ++differences;
        Line(name, value + "   (DIFFERS: " + std::string(expected) + " under Wine)");
    }

    void Title(std::string_view title)
    {
        text += '\n';
        text += title;
        text += '\n';
    }

    std::string TakeText()
    {
        text += '\n';
        text += std::to_string(differences);
        text += differences == 1 ? " finding differs from Wine\n" : " findings differ from Wine\n";
        return std::move(text);
    }

private:
    std::string text = "lumora self-test\n";
    unsigned differences = 0;
};

std::string InkOf(const BackEndFindings& findings)
{
    if (findings.strokesSeen == 0) {
        return "none";
    }
    return findings.strokesSeen == findings.strokes ? "all"
                                                    : std::to_string(findings.strokesSeen) + " of " +
                                                          std::to_string(findings.strokes) + " strokes";
}

void Add(Report& report, const BackEndFindings& findings, const SeenUnderWine& wine)
{
    report.Title(findings.name);
    if (!findings.error.empty()) {
        report.Compare("overlay", findings.error, "made");
        return;
    }
    report.Compare("overlay", "made", "made");
    report.Compare("ink", InkOf(findings), wine.ink);
    report.Compare("colour", findings.colour.empty() ? "-" : findings.colour, wine.colour);
    report.Compare("after its life", findings.isGoneAfterItsLife ? "gone" : "still there", wine.end);
    report.Compare("clicks", findings.letsClicksThrough ? "reach what is below" : "stop at the overlay",
                   wine.clicks);
    report.Line("to the paint's end", Milliseconds(findings.medianPaintMs));
    report.Line("to the screen", Milliseconds(findings.medianScreenMs));
}

} // namespace

std::string SelftestReport(const SystemFacts& system, const std::vector<BackEndFindings>& backEnds)
{
    Report report;
    report.Title("system");
    for (const auto& [name, value] : system) {
        report.Line(name, value);
    }
    for (const SeenUnderWine& wine : UnderWine) {
        const auto found = std::find_if(backEnds.begin(), backEnds.end(), [&](const BackEndFindings& each) {
            return each.name == wine.backEnd;
        });
        if (found != backEnds.end()) {
            Add(report, *found, wine);
        }
    }
    return report.TakeText();
}

} // namespace lumora::replay
