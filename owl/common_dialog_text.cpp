#include "owl/common_dialog_text.h"

#include <windows.h>

#include <cderr.h>
#include <commdlg.h>

#include <algorithm>
#include <cstdio>
#include <iterator>

namespace owl {

namespace {

struct Reason {
    unsigned long code;
    const char* text;
};

constexpr Reason reasons[] = {
    {CDERR_DIALOGFAILURE, "the system could not make the dialog"},
    {CDERR_STRUCTSIZE, "the system does not know this kind of dialog"},
    {CDERR_INITIALIZATION, "the dialog could not be prepared; memory may be short"},
    {CDERR_NOTEMPLATE, "there is no template"},
    {CDERR_NOHINSTANCE, "there is no module with the template"},
    {CDERR_LOADSTRFAILURE, "the system could not load a text of its own"},
    {CDERR_FINDRESFAILURE, "the template was not found"},
    {CDERR_LOADRESFAILURE, "the template could not be loaded"},
    {CDERR_LOCKRESFAILURE, "the template could not be read"},
    {CDERR_MEMALLOCFAILURE, "memory is short"},
    {CDERR_MEMLOCKFAILURE, "the settings could not be read"},
    {CDERR_NOHOOK, "there is no hook"},
    {CDERR_REGISTERMSGFAIL, "the system could not register its message"},
    {PDERR_SETUPFAILURE, "the settings of the printer could not be prepared"},
    {PDERR_PARSEFAILURE, "the system's list of printers is damaged"},
    {PDERR_RETDEFFAILURE, "the default printer cannot be asked together with another one"},
    {PDERR_LOADDRVFAILURE, "the printer's driver could not be loaded"},
    {PDERR_GETDEVMODEFAIL, "the printer's driver gave no settings"},
    {PDERR_INITFAILURE, "the range of pages or the printer does not fit"},
    {PDERR_NODEVICES, "there is no printer"},
    {PDERR_NODEFAULTPRN, "there is no default printer"},
    {PDERR_DNDMMISMATCH, "the settings are those of another printer"},
    {PDERR_CREATEICFAILURE, "the printer could not be asked"},
    {PDERR_PRINTERNOTFOUND, "there is no such printer any more"},
    {PDERR_DEFAULTDIFFERENT, "the printer is not the default printer any more"},
    {CFERR_NOFONTS, "there are no fonts"},
    {CFERR_MAXLESSTHANMIN, "the largest size is below the smallest one"},
    {FNERR_SUBCLASSFAILURE, "memory is short for the list of files"},
    {FNERR_INVALIDFILENAME, "the name to begin with is no file name"},
    {FNERR_BUFFERTOOSMALL, "the name of the file does not fit"},
};

}  // namespace

std::string CommonDialogText(unsigned long code) {
    const auto* const found = std::find_if(std::begin(reasons), std::end(reasons),
                                           [code](const Reason& reason) { return reason.code == code; });
    if (found != std::end(reasons))
        return found->text;
    char text[32];
    std::snprintf(text, sizeof text, "error %lx", code);
    return text;
}

}  // namespace owl
