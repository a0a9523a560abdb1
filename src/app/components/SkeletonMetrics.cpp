#include "components/SkeletonMetrics.h"

#include "components/Skeleton.h"

namespace quorvane {

int SkeletonMetrics::firstBarWidth(int row)
{
    return Skeleton::firstBarWidth(row);
}

int SkeletonMetrics::secondBarWidth(int row)
{
    return Skeleton::secondBarWidth(row);
}

} // namespace quorvane
