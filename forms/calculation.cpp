#include "forms/calculation.hpp"

#include <string>

namespace bm {

void ErrorMessage(FormContext& f, std::string_view text, std::string_view focus, std::string_view title) {
    f.ShowMessage(std::string(text), 48, std::string(title));
    f.setFocus(focus);
}

namespace {
void WarnMissing(FormContext& f, std::string_view focus, std::string_view title = "MESSAGGIO DI ERRORE") {
    ErrorMessage(f, "MANCANO DATI", focus, title);
}
}  // namespace

bool MissingData(FormContext& f, const FormValue& product, std::string_view focus, std::string_view title) {
    if (product > 0) return false;
    WarnMissing(f, focus, title);
    return true;
}

bool MissingDataSilentNegative(FormContext& f, const FormValue& product, std::string_view focus) {
    if (product == 0) {
        WarnMissing(f, focus);
        return true;
    }
    return product < 0;
}

FormValue ReadBack(const FormContext& f, const FormValue& value, std::string_view picture) {
    return FormValue(f.textValue(f.picture(value, picture)));
}

FormValue ReadBackSingle(const FormContext& f, const FormValue& value, std::string_view picture) {
    return FormValue(ToSingle(FormValue(f.textValue(f.picture(value, picture)))));
}

FormValue ReadBackFixed(const FormContext& f, const FormValue& value, int n) {
    return FormValue(f.textValue(f.fixed(value, n)));
}

FormValue ReadBackFixedSingle(const FormContext& f, const FormValue& value, int n) {
    return FormValue(ToSingle(FormValue(f.textValue(f.fixed(value, n)))));
}

void CenterOnScreen(FormContext& f) {
    const Rect w = f.window();
    // Twips are whole: the half twip of an odd difference is dropped.
    f.moveWindow((f.screenWidth() - w.width) / 2, (f.screenHeight() - w.height) / 2);
}

}  // namespace bm
