#include "owl/page_plan.h"

#include <algorithm>
#include <limits>

namespace owl {

PageRange WholeRange(const PageRange& range) {
    if (!range.IsKnown())
        return {1, std::numeric_limits<int>::max()};
    const auto [lower, higher] = std::minmax({range.from, range.to});
    return {std::max(lower, 1), higher};
}

PagePlan PlanPages(const PageRange& range, int copies, bool collate) {
    const PageRange whole = WholeRange(range);
    return {whole.from, whole.to, std::max(copies, 1), collate};
}

}  // namespace owl
