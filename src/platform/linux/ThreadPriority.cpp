#include "linux/ThreadPriority.h"

#include <sys/resource.h>
#include <unistd.h>

namespace quorvane::ThreadPriority {

void lowerCurrent()
{
    // A thread is a task of its own to the scheduler, with its own nice value; raising it
    // needs no privilege. Failing, the thread simply keeps its priority.
    (void)::setpriority(PRIO_PROCESS, static_cast<id_t>(::gettid()), 10);
}

} // namespace quorvane::ThreadPriority
