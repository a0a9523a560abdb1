#include "components/Skeleton.h"

namespace quorvane::Skeleton {

int firstBarWidth(int row)
{
    return 140 + (row * 37) % 90;
}

int secondBarWidth(int row)
{
    return 90 + (row * 53) % 70;
}

} // namespace quorvane::Skeleton
