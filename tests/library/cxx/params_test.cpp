// The typed record beside the library's own.
#include "library/cxx/layer_test.h"

#include <cstring>

namespace zq::LM::test {
namespace {

TEST(LayerParams, DefaultsAreTheLibrarys)
{
    const lumora::Library functions = lumora::Library::Load();
    lumora::Overlay overlay({}, functions);
    LM_Params ofTheLibrary = {};
    functions.getCopiedParams(&ofTheLibrary);
    const LM_Params ofTheLayer = lumora::ToRecord(lumora::Params());
    EXPECT_EQ(std::memcmp(&ofTheLayer, &ofTheLibrary, sizeof(LM_Params)), 0);
}

// Every field of its own value, flags but one off and then all on.
TEST(LayerParams, RecordComesBackAsItWas)
{
    for (std::size_t flag = 0; flag < 7; ++flag) {
        SCOPED_TRACE(flag);
        LM_Params record = {0x01020304, 4294967295U, 0x00332211, 5, 6, 7, 0, 0, 0, 0, 0, 0, 0, 9};
        (&record.line)[flag] = 1;
        const LM_Params back = lumora::ToRecord(lumora::FromRecord(record));
        EXPECT_EQ(std::memcmp(&back, &record, sizeof(record)), 0);
    }
}

TEST(LayerParams, ColourIsReadByItsParts)
{
    LM_Params record = {};
    record.inkColor = 0xFF332211;
    EXPECT_EQ(lumora::FromRecord(record).inkColor, (lumora::Colour{0x11, 0x22, 0x33}));
}

TEST(LayerParams, InkLifeBeyondTheRecordIsRefused)
{
    for (const long long life : {-1LL, 4294967296LL}) {
        lumora::Params params;
        params.inkDecayTime = std::chrono::milliseconds(life);
        EXPECT_EQ(ErrorOf([&] { lumora::ToRecord(params); }),
                  "Lumora: an ink life has 0 to 4294967295 milliseconds");
    }
}

} // namespace
} // namespace zq::LM::test
