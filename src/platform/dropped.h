// The name for a result that nobody looks at.
#pragma once

namespace zq::LM {

// Of a call whose failure nobody could mend and nobody is told of. The line, or the comment above it, says
// what is seen then.
template <typename Result> constexpr void Dropped(const Result&) {}

} // namespace zq::LM
