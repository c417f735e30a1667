// owl/page_plan.h
//
// Which pages are printed, and in which order. Pure arithmetic. Private to the framework.
#pragma once

namespace owl {

/// The pages from `from` to `to`, of which a document may have fewer, `copies` times: the document again and
/// again if `collate`, else each page so many times.
struct PagePlan {
    int from = 1;
    int to = 1;
    int copies = 1;
    bool collate = false;

    /// How often the document is gone through, and how often a page is printed each time.
    int Documents() const { return collate ? copies : 1; }
    int TimesEach() const { return collate ? 1 : copies; }
};

/// A range of pages as a user or a document tells it: the wrong way round, or 0 for what nobody knows.
struct PageRange {
    int from = 0;
    int to = 0;

    bool IsKnown() const { return from > 0 || to > 0; }
};

/// `range` from its lower to its higher page, from page 1 on and to the last page that there can be if
/// neither is known.
PageRange WholeRange(const PageRange& range);

/// At least one copy.
PagePlan PlanPages(const PageRange& range, int copies, bool collate);

}  // namespace owl
