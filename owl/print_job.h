// owl/print_job.h
//
// One run of a printout over a printer's context: the order of the calls on both, and what comes of them.
// Private to the framework.
#pragma once

#include <windows.h>

#include <functional>

#include "owl/page_plan.h"

namespace owl {

class TPrintDC;
class TPrintout;

/// What became of a job: `code` is 0, or one of the system's SP_ numbers; `call` is then the call that
/// failed, null for SP_USERABORT, and `reason` its last error.
struct PrintResult {
    int code = 0;
    const char* call = nullptr;
    DWORD reason = 0;

    bool IsGood() const { return code == 0; }
};

class PrintJob {
public:
    /// `goOn` is told the number of each page that begins, and 0 in between; with false from it the job ends.
    PrintJob(TPrintDC& dc, TPrintout& printout, std::function<bool(int page)> goOn);

    /// Prints, to the file `output` if that is not null. A job that does not come to its end is given up,
    /// also when the printout throws. Nothing at all is sent if the printout has not the first page.
    PrintResult Run(const PagePlan& plan, const char* output);

private:
    void PrintAll(const PagePlan& plan, const char* output);
    void PrintDocument(const PagePlan& plan);
    void PrintPage(int page, int times);
    void PrintPageOnce(int page);
    bool Do(const char* call, const std::function<int()>& body);

    TPrintDC& m_dc;
    TPrintout& m_printout;
    std::function<bool(int page)> m_goOn;
    PrintResult m_result;
};

}  // namespace owl
