#include "sketch/frame/settings_wizard.h"

#include "lvx/propdlg/property_dialog.h"
#include "sketch/frame/dialog_values.h"
#include "sketch/frame/property_pages.h"
#include "sketch/frame/sketch_ids.h"

namespace sketch {
namespace {

class StepPage : public PropertiesPage {
public:
    StepPage(Properties& properties, int& step)
        : PropertiesPage(IDD_STEP_PAGE, properties),
          m_step(step),
          m_field(new LVXIntEdit(this, IDC_STEP, 1, Preferences::widest_step)) {}

private:
    void Show(const Properties&) override { m_field->SetValue(m_step); }
    bool Read(Properties&) override {
        return ReadField(*this, *m_field, 1, Preferences::widest_step, m_step);
    }

    int& m_step;
    // Children are owned by their window.
    LVXIntEdit* m_field;
};

// A dialog with tabs that shows none: its buttons go from page to page.
class SettingsWizard : public TPropertyDialog {
public:
    explicit SettingsWizard(owl::TWindow* parent)
        : TPropertyDialog(parent, IDD_WIZARD, Tab::WizardFrame | Tab::CreateOnDemandAndKeepIt, nullptr) {}

    void SetupWindow() override {
        TPropertyDialog::SetupWindow();
        ShowStep(0);
    }
    void AfterSelected(int tab) override { ShowStep(tab); }

private:
    // Not around the ends.
    void BnBack() { SelectTab(Step() - 1); }
    void BnNext() { SelectTab(Step() + 1); }
    int Step() const { return GetPageRef(-1)->ThisTab(); }

    void ShowStep(int step) {
        const int last = GetEntryCount() - 1;
        EnableButton(IDC_BACK, step > 0);
        EnableButton(IDC_NEXT, step < last);
        // What Enter does.
        SendMessage(DM_SETDEFID, static_cast<WPARAM>(step < last ? IDC_NEXT : IDOK));
        const std::string caption = "Settings, step " + std::to_string(step + 1) + " of " +
                                    std::to_string(last + 1) + ": " + GetPageRef(step)->GetTabText(step);
        SetWindowText(caption);
    }
    void EnableButton(int id, bool enable) { ::EnableWindow(GetDlgItem(id), enable ? TRUE : FALSE); }

    DECLARE_RESPONSE_TABLE(SettingsWizard);
};

DEFINE_RESPONSE_TABLE1(SettingsWizard, TPropertyDialog)
    EV_COMMAND(IDC_BACK, BnBack), EV_COMMAND(IDC_NEXT, BnNext),
END_RESPONSE_TABLE;

}  // namespace

bool RunSettingsWizard(owl::TWindow* parent, Preferences& preferences) {
    Properties properties;
    properties.look = preferences.look;
    properties.font = preferences.font;
    int step = preferences.step;
    // In front of the dialog, which they outlive.
    LinePage line(properties);
    FillPage fill(properties);
    FontPage font(properties);
    StepPage arrows(properties, step);
    SettingsWizard wizard(parent);
    wizard.Add("lines of new shapes", &line);
    wizard.Add("fills of new shapes", &fill);
    wizard.Add("font of new texts", &font);
    wizard.Add("arrow keys", &arrows);
    if (wizard.Execute() != IDOK) {
        return false;
    }
    preferences = {properties.look, properties.font, step};
    return true;
}

}  // namespace sketch
