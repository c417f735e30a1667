// A paint shop: paints are mixed, and ordered by the litre. What docs/controls.md takes apart.
#include <lvx/lvx.h>
#include <owl/application.h>

#include "paints_ids.h"

namespace {

class PaintShop : public LVXCentredDialog {
public:
    PaintShop()
        : LVXCentredDialog(nullptr, IDD_PAINTS, nullptr),
          m_paints(new LVXListBox(this, IDC_PAINTS)),
          m_litres(new LVXFloatEdit(this, IDC_LITRES)),
          m_coats(new LVXIntEdit(this, IDC_COATS, 1, 9)),
          m_finish(new LVXComboBox(this, IDC_FINISH)),
          m_answer(new LVXStatic(this, IDC_ANSWER)) {}

    void SetupWindow() override {
        LVXCentredDialog::SetupWindow();
        for (const char* finish : {"Matt", "Satin", "Gloss"})
            m_finish->AddString(finish);
        m_finish->SetSelIndex(0);
        m_litres->SetValue(2.5, 2);
        m_coats->SetValue(1);
        Stock("Brick", owl::TColor(178, 34, 34));
        ShowWindow(SW_SHOW);
    }

    void CmMix() {
        owl::TColor colour = m_colour;
        std::string name = m_paints->GetSelString();
        if (LVXCustomColourDlg(this, colour, &name, nullptr).Execute() == IDOK)
            Stock(name, colour);
    }
    void CmOrder() { m_answer->SetText(Answer().c_str()); }

private:
    void Stock(const std::string& name, owl::TColor colour) {
        m_colour = colour;
        m_paints->SetSelIndex(m_paints->AddString(name.c_str()));
    }

    std::string Answer() const {
        double litres = 0;
        if (!m_litres->GetValue(litres) || litres <= 0)
            return "How many litres?";
        long coats = 0;
        if (!m_coats->GetValue(coats))
            return "From 1 to 9 coats, please.";
        return lvx::to_string(litres, 2) + " l of " + m_paints->GetSelString() + ", " +
               lvx::to_lower(m_finish->GetSelString()) + ", for " + std::to_string(coats) +
               (coats == 1 ? " coat." : " coats.");
    }

    owl::TColor m_colour;
    LVXListBox* m_paints;
    LVXFloatEdit* m_litres;
    LVXIntEdit* m_coats;
    LVXComboBox* m_finish;
    LVXStatic* m_answer;

    DECLARE_RESPONSE_TABLE(PaintShop);
};

DEFINE_RESPONSE_TABLE1(PaintShop, LVXCentredDialog)
    EV_COMMAND(IDC_MIX, CmMix), EV_COMMAND(IDC_ORDER, CmOrder),
END_RESPONSE_TABLE;

}  // namespace

int main() {
    owl::TApplication shop("Paints");
    PaintShop().Execute();
}
