// The writer of SVC recordings.
#include "number_text.h"
#include "svc.h"

#include <ostream>

namespace lumora::replay {

void WriteSvc(const Recording& recording, std::ostream& output)
{
    // Other programs may know no comments, so there is one only where a reader would guess wrong.
    if (GuessTimeUnit(recording.samples) != TimeUnit::Milliseconds) {
        output << "# time-unit: ms\n";
    }
    output << recording.samples.size() << '\n';
    for (const RecordedSample& sample : recording.samples) {
        const double upwards = recording.yUpwards ? sample.y : 0 - sample.y; // no "-0"
        output << NumberText(sample.x) << ' ' << NumberText(upwards) << ' ' << NumberText(sample.time)
               << (sample.touches ? " 1 " : " 0 ") << NumberText(sample.azimuth) << ' '
               << NumberText(sample.altitude) << ' ' << NumberText(sample.pressure) << '\n';
    }
}

} // namespace lumora::replay
