// SPDX-License-Identifier: MIT
#include "BrowserTest.h"
#include "browser/PageSigns.h"

using namespace Qt::Literals::StringLiterals;

namespace qlm {
namespace {

const QStringList Words{u"Connecte-toi d'abord"_s,
                        u"Mitglieder-Login"_s,
                        u"Volver al Inicio"_s,
                        u"Tienes que haber"_s,
                        u"Parcourir"_s,
                        u"Iniciar Sesi"_s,
                        u"siste innlogging:"_s,
                        u"ultimo accesso:"_s,
                        u"Profilaufrufe"_s,
                        u"Connexion"_s,
                        u"Rester connect"_s,
                        u"Todos os Direitos Reservados"_s,
                        u"passwort vergessen"_s,
                        u"Wachtwoord vergeten"_s,
                        u"Adgangskode"_s,
                        u"Salasana"_s,
                        u"Iscriviti!"_s,
                        u"Glemt passordet"_s,
                        u"Zarejestruj"_s,
                        u"Aanpassen aan je eigen smaak"_s};

class LanguageTest : public BrowserTest {
protected:
    bool IsForeign(const QString& text, const QString& action = u"LOGIN"_s) {
        Show(u"<p>"_s + text + u"</p>"_s);
        State().CurrentAction = action;
        return app->Get<PageSigns>().IsNotEnglishPage();
    }
};

TEST_F(LanguageTest, OneWordOfManyIsEnough) {
    for (const QString& word : Words) {
        EXPECT_TRUE(IsForeign(u"x "_s + word + u" x"_s)) << word.toStdString();
        EXPECT_TRUE(IsForeign(word.toUpper())) << word.toStdString();
    }
}

TEST_F(LanguageTest, SomeWordsCountOnlyTogether) {
    const QList<QStringList> groups{{u"Postfach"_s, u"Ausloggen"_s},
                                    {u"Inicio"_s, u"Correo"_s, u"mi cuenta"_s},
                                    {u"Mitt konto"_s, u"Logga Ut"_s}};
    for (const QStringList& group : groups) {
        EXPECT_TRUE(IsForeign(group.join(u" - "_s)));
        EXPECT_TRUE(IsForeign(group.join(u" - "_s).toUpper()));
        for (qsizetype left = 0; left < group.size(); ++left) {
            QStringList rest = group;
            rest.removeAt(left);
            EXPECT_FALSE(IsForeign(rest.join(u" - "_s))) << rest.join(u'+').toStdString();
        }
    }
}

TEST_F(LanguageTest, OnlyALoginAsks) {
    EXPECT_FALSE(IsForeign(u"Parcourir"_s, u"FR"_s));
    EXPECT_FALSE(IsForeign(u"Parcourir"_s, {}));
    EXPECT_FALSE(IsForeign(u"Browse"_s));
}

TEST_F(LanguageTest, MarkupDoesNotCount) {
    for (const QString& word : Words)
        EXPECT_FALSE(IsForeign(u"<a title=\""_s + word + u"\">Browse</a>"_s)) << word.toStdString();
    EXPECT_FALSE(IsForeign(u"Ausloggen<a title=Postfach>Browse</a>"_s));
    EXPECT_FALSE(IsForeign(u"Postfach<a title=Ausloggen>Browse</a>"_s));
    EXPECT_FALSE(IsForeign(u"Correo, mi cuenta<a title=Inicio>Browse</a>"_s));
    EXPECT_FALSE(IsForeign(u"Inicio, mi cuenta<a title=Correo>Browse</a>"_s));
    EXPECT_FALSE(IsForeign(u"Inicio, Correo<a title='mi cuenta'>Browse</a>"_s));
    EXPECT_FALSE(IsForeign(u"Logga Ut<a title='Mitt konto'>Browse</a>"_s));
    EXPECT_FALSE(IsForeign(u"Mitt konto<a title='Logga Ut'>Browse</a>"_s));
}

} // namespace
} // namespace qlm
