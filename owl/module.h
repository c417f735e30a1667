// owl/module.h
//
// A program or a DLL as a source of resources. Owns the library that it loads itself, nothing else; what it
// loads for a caller belongs to the caller.
#pragma once

#include <windows.h>

#include <string>

#include "owl/platform/export.h"
#include "owl/resource_id.h"

namespace owl {

class OWL_EXPORT TModule {
public:
    /// A module that is in the process already: the program itself if `instance` is null. `name` is what
    /// GetName tells; null names it by its file, without folder and extension.
    explicit TModule(const char* name = nullptr, HINSTANCE instance = nullptr);
    /// Loads the library `file` and keeps it until destruction, or, with `load` false, stands for `file` that
    /// somebody else has loaded. Throws TXOwl if there is no such library.
    TModule(const char* file, bool load);
    virtual ~TModule();
    TModule(const TModule&) = delete;
    TModule& operator=(const TModule&) = delete;

    const char* GetName() const { return m_name.c_str(); }
    void SetName(const std::string& name) { m_name = name; }
    HINSTANCE GetInstance() const { return m_instance; }
    /// The full path of the module's file.
    std::string GetModuleFileName() const;

    /// The text `id` of the string table; empty if there is none.
    std::string LoadString(UINT id) const;
    /// These give null if the module has no such resource. Bitmaps, menus, accelerator tables and icons that
    /// are not shared are for the caller to destroy.
    HBITMAP LoadBitmap(TResId id) const;
    HICON LoadIcon(TResId id) const;
    HCURSOR LoadCursor(TResId id) const;
    HMENU LoadMenu(TResId id) const;
    HACCEL LoadAccelerators(TResId id) const;
    HRSRC FindResource(TResId id, const char* type) const;
    HGLOBAL LoadResource(HRSRC resource) const;

private:
    std::string m_name;
    HINSTANCE m_instance;
    bool m_loaded = false;
};

}  // namespace owl
