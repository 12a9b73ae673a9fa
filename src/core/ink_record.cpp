// The parameter record of an instance, the ink engine that draws by a copy of it, and the view in which a
// person changes it.
#include "core/ink_record.h"

#include "platform/make_or_null.h"
#include "platform/win32/gdi_owners.h"
#include "settings/brush_data.h"

namespace zq::LM {

namespace {

std::uint8_t g_previousColorPicker = 0; // the picking flag as the pen input before saw it; outlives instances

// 0 when the screen cannot be read.
COLORREF ColourUnderCursor()
{
    const WindowDC desktop(GetDesktopWindow());
    if (desktop.Get() == nullptr) {
        return 0;
    }
    POINT cursor{};
    GetCursorPos(&cursor);
    return GetPixel(desktop.Get(), cursor.x, cursor.y);
}

} // namespace

InkRecord::InkRecord() : engine(MakeOrNull<Drawing>()), record(MakeOrNull<Params>(DefaultParams))
{
    if (engine != nullptr) {
        engine->GetCopiedParams(record.get());
    }
}

void InkRecord::Replace(const Params& source)
{
    if (record == nullptr) {
        return;
    }
    *record = source;
    PassToEngine();
    ShowInView_();
}

void InkRecord::Apply(std::uint8_t* message)
{
    if (record == nullptr) {
        return;
    }
    if (message != nullptr) {
        DecodeBrushData(*record, message);
    }
    PassToEngine();
    ShowInView_();
}

void InkRecord::ApplyReceived(std::span<const std::uint8_t> bytes)
{
    if (record == nullptr || bytes.empty()) {
        return;
    }
    DecodeReceivedBrushData(*record, bytes);
    PassToEngine();
    ShowInView_();
}

unsigned InkRecord::Pick(bool isChosen)
{
    const unsigned colour = ColourUnderCursor();
    if (record != nullptr) {
        if (isChosen) {
            record->colorPicker = 0;
        }
        record->inkColor = colour;
        PassToEngine();
    }
    return colour;
}

void InkRecord::PassToEngine()
{
    if (engine != nullptr) {
        engine->SetParams(record.get());
    }
}

// Picking a colour ends inside a frame, where nothing may be shown.
void InkRecord::ShowPickedColour()
{
    if (record == nullptr) {
        return;
    }
    if (view != nullptr && g_previousColorPicker == 1 && record->colorPicker == 0) {
        view->Refresh();
        if (view == nullptr) {
            return; // ended meanwhile: the flag is the next instance's by now
        }
    }
    g_previousColorPicker = record->colorPicker;
}

void InkRecord::OpenView()
{
    if (view != nullptr) {
        view->Open();
    }
}

void InkRecord::EndEngine()
{
    engine.reset();
    record.reset();
}

void InkRecord::ShowInView_()
{
    if (view != nullptr) {
        view->Refresh();
    }
}

} // namespace zq::LM
