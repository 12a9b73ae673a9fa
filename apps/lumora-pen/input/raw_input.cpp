// Who has sent a message of Raw Input, and what becomes of it.
#include "input/raw_input.h"

#include "input/hid_usages.h"
#include "input/made_by_pointer.h"
#include "input/raw_device.h"

#include <algorithm>
#include <utility>

namespace lumora_pen {

RawInput::RawInput(HWND window, TakeInput take, std::function<bool()> isHeld)
    : window(window), take(std::move(take)), mouse(std::move(isHeld))
{
}

bool RawInput::SetMouse(bool wanted)
{
    if (wanted == (mouseRegistration != nullptr)) {
        return true;
    }
    mouseRegistration =
        wanted ? RawRegistration::Make(usages::DesktopPage, usages::MouseDevice, window) : nullptr;
    mouse.Rest(GetTickCount(), batch.samples);
    HandOut_(Mouse);
    return wanted == (mouseRegistration != nullptr);
}

bool RawInput::SetPens(bool wanted)
{
    if (wanted == (penRegistration != nullptr)) {
        return true;
    }
    if (wanted) {
        penRegistration = RawRegistration::Make(usages::DigitizerPage, usages::PenDevice, window);
        if (penRegistration == nullptr) {
            return false;
        }
        for (HANDLE device : RawDevices()) {
            FindPen_(device);
        }
        return true;
    }
    penRegistration.reset();
    for (const Known& known : std::exchange(pens, {})) {
        LeavePen_(*known.pen, GetTickCount());
    }
    return true;
}

void RawInput::OnInput(HRAWINPUT input)
{
    // What was on its way when a kind was switched off writes nothing any more.
    if (!message.Read(input)) {
        return;
    }
    if (message.IsMouse()) {
        if (mouseRegistration != nullptr) {
            TakeMouse_(message.MouseReport());
        }
    } else if (penRegistration != nullptr) {
        TakePen_();
    }
}

void RawInput::OnDeviceChange(WPARAM change, HANDLE device)
{
    if (penRegistration == nullptr) {
        return;
    }
    if (change == GIDC_ARRIVAL) {
        if (FindPen_(device) != nullptr) {
            AskForPlaces_();
        }
        return;
    }
    const auto known =
        std::find_if(pens.begin(), pens.end(), [device](const Known& each) { return each.handle == device; });
    if (change == GIDC_REMOVAL && known != pens.end()) {
        const Known gone = std::move(*known);
        pens.erase(known);
        AskForPlaces_();
        LeavePen_(*gone.pen, GetTickCount());
    }
}

void RawInput::OnDisplayChange()
{
    AskForPlaces_();
    // A stroke would go on elsewhere. What takes the batch may change the list.
    std::vector<std::shared_ptr<PenDevice>> all;
    all.reserve(pens.size());
    for (const Known& known : pens) {
        all.push_back(known.pen);
    }
    for (const auto& pen : all) {
        LeavePen_(*pen, GetTickCount());
    }
}

void RawInput::LookAtMouse()
{
    if (mouseRegistration != nullptr) {
        mouse.Look(GetTickCount(), batch.samples);
        HandOut_(Mouse);
    }
}

std::vector<std::wstring> RawInput::UnreadablePens() const
{
    std::vector<std::wstring> names;
    for (const Known& known : pens) {
        if (!known.pen->IsReadable()) {
            names.push_back(known.pen->Name());
        }
    }
    return names;
}

std::vector<std::wstring> RawInput::UnmappedPens() const
{
    std::vector<std::wstring> names;
    for (const Known& known : pens) {
        if (known.pen->IsReadable() && !known.pen->IsMapped()) {
            names.push_back(known.pen->Name());
        }
    }
    return names;
}

void RawInput::TakeMouse_(const RAWMOUSE& report)
{
    // A pen that writes already must not write twice; one that cannot be read may do it as a mouse.
    if (IsMadeByPointer(report.ulExtraInformation) && IsPenInRange_()) {
        mouse.Rest(GetTickCount(), batch.samples);
        HandOut_(Mouse);
        return;
    }
    LookAtMouse();
}

void RawInput::TakePen_()
{
    const RawReports reports = message.Reports();
    PenDevice* pen = reports.size > 0 ? FindPen_(message.Device()) : nullptr;
    if (pen != nullptr) {
        pen->Take(reports, static_cast<std::uint32_t>(GetMessageTime()), batch.samples);
        HandOut_(pen->Number());
    }
}

PenDevice* RawInput::FindPen_(HANDLE device)
{
    const auto known =
        std::find_if(pens.begin(), pens.end(), [device](const Known& each) { return each.handle == device; });
    if (known != pens.end()) {
        return known->pen.get();
    }
    const auto facts = PenFacts(device);
    if (!facts) {
        return nullptr;
    }
    pens.push_back({device, std::make_shared<PenDevice>(device, *facts, nextPen++)});
    return pens.back().pen.get();
}

void RawInput::LeavePen_(PenDevice& pen, std::uint32_t time)
{
    pen.Leave(time, batch.samples);
    HandOut_(pen.Number());
}

void RawInput::AskForPlaces_()
{
    for (const Known& known : pens) {
        known.pen->AskForPlace();
    }
}

bool RawInput::IsPenInRange_() const
{
    return std::any_of(pens.begin(), pens.end(), [](const Known& known) { return known.pen->IsInRange(); });
}

// What is taken may lead back here, to a batch of its own.
void RawInput::HandOut_(Source source)
{
    if (batch.samples.empty()) {
        return;
    }
    InputBatch taken;
    std::swap(taken, batch);
    taken.source = source;
    take(taken);
    taken.samples.clear();
    std::swap(taken, batch);
}

} // namespace lumora_pen
