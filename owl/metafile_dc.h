// owl/metafile_dc.h
//
// A context that records what is drawn on it, in memory or to a file. Windows only. Does not: know a world
// transform, or tell much about a device, since there is none yet.
#pragma once

#include "owl/dc.h"

namespace owl {

class OWL_EXPORT TMetaFileDC : public TDC {
public:
    /// Records to a file of that name, which it replaces, or in memory if `fileName` is null. Throws TXGdi if
    /// the file cannot be made.
    explicit TMetaFileDC(const char* fileName = nullptr);
    /// Throws away what was recorded in memory, unless Close() has handed it over.
    ~TMetaFileDC() override;

    /// Ends recording and hands the metafile to the caller, who deletes it, most easily by a TMetaFilePict.
    /// Nothing can be drawn here any more. Throws TXGdi if it is closed already or the system could not
    /// record everything.
    HMETAFILE Close();
};

}  // namespace owl
