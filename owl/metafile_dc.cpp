#include "owl/metafile_dc.h"

#include "owl/last_error.h"

namespace owl {

TMetaFileDC::TMetaFileDC(const char* fileName) {
    SetHandle(Require<TXGdi>("CreateMetaFile", [&] { return ::CreateMetaFile(fileName); }));
}

TMetaFileDC::~TMetaFileDC() {
    if (const HDC handle = ReleaseHandle())
        ::DeleteMetaFile(::CloseMetaFile(handle));
}

HMETAFILE TMetaFileDC::Close() {
    const HDC handle = ReleaseHandle();
    return Require<TXGdi>("CloseMetaFile", [&] { return handle ? ::CloseMetaFile(handle) : nullptr; });
}

}  // namespace owl
