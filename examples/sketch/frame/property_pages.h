// The pages of the dialog for properties. Each shows its part of the properties when its window is made, and
// puts it back when the dialog is closed by OK. Before that, and before another page comes forward, the pages
// with numbers say what is wrong with them, and stay.
#pragma once

#include "lvx/controls/edit.h"
#include "lvx/controls/float_edit.h"
#include "lvx/controls/int_edit.h"
#include "lvx/propdlg/property_page.h"
#include "sketch/frame/font_sample.h"
#include "sketch/frame/look_fields.h"
#include "sketch/model/properties.h"

namespace sketch {

/// What the pages have in common.
class PropertiesPage : public LVXPropertyPage {
public:
    /// `properties` outlive the page.
    PropertiesPage(int resource, Properties& properties)
        : LVXPropertyPage(resource, nullptr), m_properties(properties) {}

    void SetupWindow() override;
    bool BeforeLeaving() override { return Check(); }
    bool CanPageClose() override { return !IsWindow() || Check(); }
    bool SaveData() override { return Read(m_properties); }

protected:
    virtual void Show(const Properties& properties) = 0;
    /// Reads the fields. False, with the user told, if one is wrong.
    virtual bool Read(Properties& properties) = 0;

    Properties& m_properties;

private:
    bool Check();
};

class ShapePage : public PropertiesPage {
public:
    explicit ShapePage(Properties& properties);

private:
    void Show(const Properties& properties) override;
    bool Read(Properties& properties) override;

    // Children are owned by their window.
    LVXIntEdit* m_left;
    LVXIntEdit* m_top;
    LVXIntEdit* m_width;
    LVXIntEdit* m_height;
};

class LinePage : public PropertiesPage {
public:
    explicit LinePage(Properties& properties);

private:
    void Show(const Properties& properties) override { m_fields.Show(properties.look); }
    bool Read(Properties& properties) override { return m_fields.Read(properties.look); }
    void BnColour() { m_fields.MakeColour(); }

    LineFields m_fields{*this};

    DECLARE_RESPONSE_TABLE(LinePage);
};

class FillPage : public PropertiesPage {
public:
    explicit FillPage(Properties& properties);

private:
    void Show(const Properties& properties) override { m_fields.Show(properties.look); }
    bool Read(Properties& properties) override;
    void BnColour() { m_fields.MakeColour(); }

    FillFields m_fields{*this};

    DECLARE_RESPONSE_TABLE(FillPage);
};

class FontPage : public PropertiesPage {
public:
    explicit FontPage(Properties& properties);

private:
    void Show(const Properties& properties) override;
    bool Read(Properties& properties) override;
    void BnFont();

    myFont m_font;
    FontSample m_sample;

    DECLARE_RESPONSE_TABLE(FontPage);
};

class PicturePage : public PropertiesPage {
public:
    explicit PicturePage(Properties& properties);

private:
    void Show(const Properties& properties) override;
    bool Read(Properties& properties) override;

    // Children are owned by their window.
    LVXEdit* m_name;
    LVXFloatEdit* m_degrees;
};

}  // namespace sketch
