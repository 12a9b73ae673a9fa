// The facts that the information overlay tells of a living instance.
#include "support/library/composition_test.h"

#include <algorithm>

namespace zq::LM::test {

namespace {

using testing::ElementsAre;

class InformationFactsTest : public CompositionTest {
protected:
    InformationFactsTest() { CreateQuietly(); }
    ~InformationFactsTest() override { library.SetDebugLevel(0); }

    // Which brush it was is another matter.
    static void ForgetBrush(std::string& call)
    {
        const std::size_t brush = call.find("Brush#");
        ASSERT_NE(brush, std::string::npos);
        const std::size_t end = call.find_first_not_of("0123456789", brush + 6);
        call.replace(brush, end - brush, "Brush");
    }

    Lines BarsAndTexts()
    {
        Lines drawn = Frame();
        std::erase_if(drawn, [](const std::string& call) {
            return call.find(".DrawText(") == std::string::npos &&
                   call.find(".FillRectangle(") == std::string::npos;
        });
        std::for_each(drawn.begin(), drawn.end(), ForgetBrush);
        return drawn;
    }

    // A rectangle of one line, 24 wide for each character.
    static std::string Text(const std::string& line, int x, int y)
    {
        return "DeviceContext#1.DrawText(\"" + line + "\", " + std::to_string(line.size()) +
               ", TextFormat#1, {" + std::to_string(x) + ", " + std::to_string(y) + ", " +
               std::to_string(x + 24 * static_cast<int>(line.size())) + ", " + std::to_string(y + 24) +
               "}, Brush, 0, 0)";
    }
    static std::string Bar(const std::string& place)
    {
        return "DeviceContext#1.FillRectangle({" + place + "}, Brush)";
    }
};

TEST_F(InformationFactsTest, AreInEveryBarAndTextInItsPlace)
{
    library.SetDebugLevel(1);
    SetField(&LM_Params::inkDecayTime, 1000);
    Input({Sample(100, 100), Sample(101, 100, 0)});
    clock.Advance(10);
    Input({Sample(-17, 300, 1234)});     // the third sample in 10 ms
    std::string version = VersionLine(); // with the numbers in parentheses
    version = version.substr(version.find('(') + 1);
    version = "Version = { " + version.substr(0, version.find(')')) + " }";
    Frame();
    clock.Advance(8);
    EXPECT_THAT(BarsAndTexts(),
                ElementsAre(Bar("280, 300, 640, 444"),
                            Bar("280, 336, 640, 360"), // 300
                            Text("Pen Report Rate (Max 300 Hz)", 280, 288),
                            Bar("280, 400, 430, 424"), // 125
                            Text("Reflesh Rate ( Max 120 Hz)", 280, 352),
                            Text("DLL Menu : Ctrl + Alt + Shirt + S", 310, 32), Text(version, 310, 56),
                            Text("Frequency (Drawing) = 125", 310, 80),
                            Text("Frequency (Pen Data) = 300", 310, 104),
                            Text("Rendering Type = Direct Composition", 310, 128),
                            Text("Screen = { 200,   60,  840,  540}", 310, 152),
                            Text("Position = ( -17,  300)", 310, 176), Text("Pressure =  1234", 310, 200)));
}

} // namespace

} // namespace zq::LM::test
