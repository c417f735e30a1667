#include "owl/print_job.h"

#include <utility>

#include "owl/print_dc.h"
#include "owl/printout.h"

namespace owl {

namespace {

// The printout has the context for so long.
class Parameters {
public:
    Parameters(TPrintout& printout, TPrintDC& dc)
        : m_printout(printout), m_size(dc.GetDeviceCaps(HORZRES), dc.GetDeviceCaps(VERTRES)) {
        m_printout.SetPrintParams(&dc, m_size);
    }
    ~Parameters() { m_printout.SetPrintParams(nullptr, m_size); }
    Parameters(const Parameters&) = delete;
    Parameters& operator=(const Parameters&) = delete;

private:
    TPrintout& m_printout;
    TSize m_size;
};

// A document that has begun is given up unless it is ended.
class OpenDocument {
public:
    explicit OpenDocument(TPrintDC& dc) : m_dc(dc) {}
    ~OpenDocument() {
        if (!m_ended)
            m_dc.AbortDoc();
    }
    OpenDocument(const OpenDocument&) = delete;
    OpenDocument& operator=(const OpenDocument&) = delete;

    int End() {
        m_ended = true;
        return m_dc.EndDoc();
    }

private:
    TPrintDC& m_dc;
    bool m_ended = false;
};

}  // namespace

PrintJob::PrintJob(TPrintDC& dc, TPrintout& printout, std::function<bool(int page)> goOn)
    : m_dc(dc), m_printout(printout), m_goOn(std::move(goOn)) {}

PrintResult PrintJob::Run(const PagePlan& plan, const char* output) {
    const Parameters parameters(m_printout, m_dc);
    m_printout.BeginPrinting();
    if (m_printout.HasPage(plan.from))
        PrintAll(plan, output);
    m_printout.EndPrinting();
    return m_result;
}

void PrintJob::PrintAll(const PagePlan& plan, const char* output) {
    if (!Do("StartDoc", [&] { return m_dc.StartDoc(m_printout.GetTitle().c_str(), output); }))
        return;
    OpenDocument document(m_dc);
    for (int i = 0; i < plan.Documents() && m_result.IsGood(); ++i)
        PrintDocument(plan);
    if (m_result.IsGood())
        Do("EndDoc", [&] { return document.End(); });
}

void PrintJob::PrintDocument(const PagePlan& plan) {
    m_printout.BeginDocument(plan.from, plan.to, pfBoth);
    for (int page = plan.from; m_result.IsGood() && m_printout.HasPage(page); ++page) {
        PrintPage(page, plan.TimesEach());
        if (page == plan.to)
            break;
    }
    m_printout.EndDocument();
}

void PrintJob::PrintPage(int page, int times) {
    for (int i = 0; i < times && m_result.IsGood(); ++i) {
        if (m_goOn(page))
            PrintPageOnce(page);
        else
            m_result = {SP_USERABORT, nullptr, 0};
    }
}

// Some systems leave the modes of one page to the next one.
void PrintJob::PrintPageOnce(int page) {
    if (!Do("StartPage", [&] { return m_dc.StartPage(); }))
        return;
    const int saved = m_dc.SaveDC();
    TRect rect(TPoint(), m_printout.GetPageSize());
    m_printout.PrintPage(page, rect, pfBoth);
    m_dc.RestoreObjects();
    m_dc.RestoreDC(saved);
    Do("EndPage", [&] { return m_dc.EndPage(); });
}

// A refusal may come from the user, by way of who is asked whether to go on.
bool PrintJob::Do(const char* call, const std::function<int()>& body) {
    ::SetLastError(0);
    const int answer = body();
    if (answer > 0)
        return true;
    const DWORD reason = ::GetLastError();
    if (m_goOn(0))
        m_result = {answer < 0 ? answer : SP_ERROR, call, reason};
    else
        m_result = {SP_USERABORT, nullptr, 0};
    return false;
}

}  // namespace owl
