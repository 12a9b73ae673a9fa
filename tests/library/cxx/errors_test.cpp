// What an Overlay cannot be made of, and what becomes of the library's exceptions.
#include "library/cxx/layer_test.h"
#include "support/fakes/memory.h"

namespace zq::LM::test {
namespace {

class LayerErrors : public LayerTest {
protected:
    void SetUp() override {}

    std::string ErrorOfACreation() const
    {
        return ErrorOf([this] { lumora::Overlay(lumora::OverlayOptions(), functions); });
    }
};

TEST_F(LayerErrors, FileThatIsNotThereIsNamedWithTheSystemsNumber)
{
    EXPECT_EQ(ErrorOf([] { lumora::Library::Load(L"NoSuchL\u00fcmora.dll"); }),
              "Lumora: NoSuchL\xC3\xBCmora.dll cannot be loaded, system error " +
                  std::to_string(ERROR_MOD_NOT_FOUND));
}

TEST_F(LayerErrors, LibraryOfSomebodyElseLacksAFunction)
{
    EXPECT_EQ(ErrorOf([] { lumora::Library::Load(L"kernel32.dll"); }),
              "Lumora: the library has no function LM_Create");
}

TEST_F(LayerErrors, FullPathIsLoadedFromThere)
{
    EXPECT_EQ(lumora::Library::Load(LibraryPath()).create, library.Create);
}

TEST_F(LayerErrors, RecordsOfAnotherSizeAreRefused)
{
    functions.getElmSize = [](std::uint64_t* params, std::uint64_t* penData) {
        *params = sizeof(LM_Params);
        *penData = 40;
    };
    EXPECT_EQ(ErrorOfACreation(),
              "Lumora: the library's records have 32 and 40 bytes, not those of these headers");
    EXPECT_EQ(library.GetWindowHandle(), nullptr);
}

TEST_F(LayerErrors, OverlayWithoutAWindowLeavesNoInstance)
{
    Hook<"CreateWindowExW", decltype(CreateWindowExW)> creation(library.Module());
    creation.Fail(nullptr);
    EXPECT_EQ(ErrorOfACreation(), "Lumora: the overlay's window could not be made");
    LM_Params untouched = {};
    library.GetCopiedParams(&untouched);
    EXPECT_EQ(untouched.brushSize, 0U);
}

TEST_F(LayerErrors, OverlayWithoutAWindowOnTheWantedBackEndLeavesNoInstanceAndNoRequestToQuit)
{
    Hook<"CreateWindowExW", decltype(CreateWindowExW)> creation(library.Module());
    creation.Fail(nullptr, 2);
    EXPECT_EQ(ErrorOf([this] { lumora::Overlay(OnGDI(), functions); }),
              "Lumora: the overlay's window could not be made");
    EXPECT_EQ(library.GetWindowHandle(), nullptr);
    EXPECT_EQ(TakeQuitMessage(), std::nullopt);
    creation.PassOn();
    EXPECT_EQ(ErrorOfACreation(), "");
}

TEST_F(LayerErrors, AfterAFailureTheNextCreationSucceeds)
{
    {
        Hook<"CreateWindowExW", decltype(CreateWindowExW)> creation(library.Module());
        creation.Fail(nullptr);
        EXPECT_NE(ErrorOfACreation(), "");
    }
    EXPECT_EQ(ErrorOfACreation(), "");
}

TEST_F(LayerErrors, ExceptionOfALibraryBecomesAnError)
{
    functions.create = []() -> LM_WindowHandle { throw 1; };
    EXPECT_EQ(ErrorOfACreation(), "Lumora: out of memory");
}

TEST_F(LayerErrors, OverlayOutlivesAnInputThatFails)
{
    functions.inputPenDataArray = [](const LM_PenData*, std::uint64_t) { throw std::bad_alloc(); };
    lumora::Overlay overlay(lumora::OverlayOptions(), functions);
    EXPECT_EQ(ErrorOf([&] { overlay.Input({Sample(1, 1)}); }), "Lumora: out of memory");
    EXPECT_TRUE(IsWindow(overlay.Window()));
}

#ifdef __MINGW32__ // whose library imports its allocator
TEST_F(LayerErrors, LibraryThatFindsNoMemoryRaisesAnErrorHere)
{
    constexpr std::size_t OfTheSampleStore = 1'000'000;
    MemoryStandIn memory(library.Module());
    memory.RefuseWhen([](std::size_t size, unsigned) { return size >= OfTheSampleStore; });
    EXPECT_EQ(ErrorOfACreation(), "Lumora: out of memory");
    memory.RefuseNothing();
    EXPECT_EQ(ErrorOfACreation(), "");
}
#endif

} // namespace
} // namespace zq::LM::test
