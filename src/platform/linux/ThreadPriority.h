#pragma once

namespace quorvane::ThreadPriority {

// Lets the calling thread give way to the process's other threads whenever they want the
// processor: for work that is needed soon, but that nothing waits for yet.
void lowerCurrent();

} // namespace quorvane::ThreadPriority
