#pragma once

namespace quorvane::bench {

// The week grid's gestures: 1,000 pointer moves of a drag through a day column, as the
// screen feeds them. Prints its figures; false when one is over its budget.
bool benchAvailability();

} // namespace quorvane::bench
