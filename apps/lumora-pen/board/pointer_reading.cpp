// What the system tells of a pen or a finger.
#include "board/pointer_reading.h"

#include "input/pointer_report.h"

namespace lumora_pen {

namespace {

// What is common to pens and fingers.
struct Report {
    POINTER_INFO info = {};
    std::optional<std::uint32_t> pressure; // none where it is not felt
    bool isEraser = false;                 // the other end of the pen, which writes nothing
};

Report ReportOf(const POINTER_PEN_INFO& pen)
{
    Report report{pen.pointerInfo, std::nullopt, (pen.penFlags & (PEN_FLAG_INVERTED | PEN_FLAG_ERASER)) != 0};
    if ((pen.penMask & PEN_MASK_PRESSURE) != 0) {
        report.pressure = pen.pressure;
    }
    return report;
}

Report ReportOf(const POINTER_TOUCH_INFO& finger)
{
    Report report{finger.pointerInfo, std::nullopt, false};
    if ((finger.touchMask & TOUCH_MASK_PRESSURE) != 0) {
        report.pressure = finger.pressure;
    }
    return report;
}

// A busy program gets one message for several reports; without all of them curves become polygons. Where the
// system does not give them, the newest has to do, and at least the place of that.
template <typename Info>
std::vector<Report> ReadReports(UINT32 pointer, BOOL(WINAPI* readNewest)(UINT32, Info*),
                                BOOL(WINAPI* readHistory)(UINT32, UINT32*, Info*))
{
    Info newest = {};
    if (!readNewest(pointer, &newest)) {
        Report plain;
        return GetPointerInfo(pointer, &plain.info) ? std::vector<Report>{plain} : std::vector<Report>{};
    }
    UINT32 count = HistoryToAsk(newest.pointerInfo.historyCount);
    std::vector<Info> history(count);
    if (readHistory(pointer, &count, history.data())) {
        TurnOldestFirst(history, count);
    } else {
        history.assign(1, newest);
    }
    std::vector<Report> reports;
    reports.reserve(history.size());
    for (const Info& info : history) {
        reports.push_back(ReportOf(info));
    }
    return reports;
}

PixelRectangle FromSystem(const RECT& rectangle)
{
    return {rectangle.left, rectangle.top, rectangle.right, rectangle.bottom};
}

Tablet ReadTablet(HANDLE device)
{
    RECT surface = {};
    RECT display = {};
    if (!GetPointerDeviceRects(device, &surface, &display)) {
        return {};
    }
    return {FromSystem(surface), FromSystem(display)};
}

// Raw positions are where the pen was. The others are where the system expects it to be, which is wrong at
// turns.
InputSample SampleOf(const Report& report, const Tablet& tablet)
{
    const POINT fine = report.info.ptHimetricLocationRaw;
    const POINT pixel = report.info.ptPixelLocationRaw;
    const Position place = PlaceOnScreen({fine.x, fine.y}, {pixel.x, pixel.y}, tablet);
    const bool writes = (report.info.pointerFlags & POINTER_FLAG_INCONTACT) != 0 && !report.isEraser;
    return {place.x, place.y, writes ? TouchPressure(report.pressure) : 0, report.info.dwTime};
}

} // namespace

std::optional<PointerReading> ReadPointer(UINT32 pointer)
{
    POINTER_INPUT_TYPE type = PT_POINTER;
    if (!GetPointerType(pointer, &type) || (type != PT_PEN && type != PT_TOUCH)) {
        return std::nullopt;
    }
    const std::vector<Report> reports =
        type == PT_PEN
            ? ReadReports<POINTER_PEN_INFO>(pointer, GetPointerPenInfo, GetPointerPenInfoHistory)
            : ReadReports<POINTER_TOUCH_INFO>(pointer, GetPointerTouchInfo, GetPointerTouchInfoHistory);
    PointerReading reading;
    if (reports.empty()) {
        return reading;
    }
    reading.samples.reserve(reports.size());
    const Tablet tablet = ReadTablet(reports.front().info.sourceDevice);
    for (const Report& report : reports) {
        reading.isCancelled = reading.isCancelled || (report.info.pointerFlags & POINTER_FLAG_CANCELED) != 0;
        reading.samples.push_back(SampleOf(report, tablet));
    }
    return reading;
}

} // namespace lumora_pen
