// SPDX-License-Identifier: MIT
#include "browser/PageSigns.h"
#include "browser/PageView.h"
#include "core/ActivityWords.h"
#include "core/App.h"

#include <vector>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

const std::vector<PageMarks>& ForeignMarkers() {
    using enum In;
    static const std::vector<PageMarks> markers{
        {{Text, u"Connecte-toi d'abord"}},
        {{Text, u"Mitglieder-Login"}},
        {{Text, u"Volver al Inicio"}},
        {{Text, u"Tienes que haber"}},
        {{Text, u"Parcourir"}},
        {{Text, u"Iniciar Sesi"}},
        {{Text, u"siste innlogging:"}},
        {{Text, u"ultimo accesso:"}},
        {{Text, u"Profilaufrufe"}},
        {{Text, u"Connexion"}},
        {{Text, u"Rester connect"}},
        {{Text, u"Todos os Direitos Reservados"}},
        {{Text, u"passwort vergessen"}},
        {{Text, u"Wachtwoord vergeten"}},
        {{Text, u"Adgangskode"}},
        {{Text, u"Salasana"}},
        {{Text, u"Iscriviti!"}},
        {{Text, u"Glemt passordet"}},
        {{Text, u"Zarejestruj"}},
        {{Text, u"Aanpassen aan je eigen smaak"}},
        {{Text, u"Postfach"}, {Text, u"Ausloggen"}},
        {{Text, u"Inicio"}, {Text, u"Correo"}, {Text, u"mi cuenta"}},
        {{Text, u"Mitt konto"}, {Text, u"Logga Ut"}},
    };
    return markers;
}

} // namespace

bool PageSigns::IsNotEnglishPage() {
    return m_app.state.CurrentAction == ActivityWord::Login && ShownPage(m_app).IsOneOf(ForeignMarkers());
}

void ShowLanguageMessage(App& app) {
    app.ShowMessage(u"In order to use Quillmere, your MySpace language setting must be English.\n\n"
                    "Please change this in your account settings and restart the program."_s);
}

} // namespace qlm
