// SPDX-License-Identifier: MIT
#include "browser/PageSigns.h"
#include "core/App.h"

#include <algorithm>
#include <vector>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

// Each row is a group of which all members must be on the page; most groups have one member.
const std::vector<std::vector<const char16_t*>>& ForeignMarkers() {
    static const std::vector<std::vector<const char16_t*>> markers{
        {u"Connecte-toi d'abord"},
        {u"Mitglieder-Login"},
        {u"Volver al Inicio"},
        {u"Tienes que haber"},
        {u"Parcourir"},
        {u"Iniciar Sesi"},
        {u"siste innlogging:"},
        {u"ultimo accesso:"},
        {u"Profilaufrufe"},
        {u"Connexion"},
        {u"Rester connect"},
        {u"Todos os Direitos Reservados"},
        {u"passwort vergessen"},
        {u"Wachtwoord vergeten"},
        {u"Adgangskode"},
        {u"Salasana"},
        {u"Iscriviti!"},
        {u"Glemt passordet"},
        {u"Zarejestruj"},
        {u"Aanpassen aan je eigen smaak"},
        {u"Postfach", u"Ausloggen"},
        {u"Inicio", u"Correo", u"mi cuenta"},
        {u"Mitt konto", u"Logga Ut"},
    };
    return markers;
}

} // namespace

bool PageSigns::IsNotEnglishPage() {
    if (m_app.state.CurrentAction != u"LOGIN"_s)
        return false;
    return std::any_of(ForeignMarkers().begin(), ForeignMarkers().end(), [this](const auto& group) {
        return std::all_of(group.begin(), group.end(), [this](const char16_t* marker) {
            return IsTextInPage(QString::fromUtf16(marker));
        });
    });
}

void ShowLanguageMessage(App& app) {
    app.ShowMessage(
        u"In order to use Quillmere, your MySpace language setting must be English.\n\nPlease change "
        "this in your account settings and restart the program."_s);
}

} // namespace qlm
