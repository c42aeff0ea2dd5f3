// SPDX-License-Identifier: MIT
#include "shell/frmFilters.h"

#include "shell/FormParts.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QRadioButton>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

QRadioButton* NewOption(QLatin1StringView name, const QString& caption) {
    return Named(new QRadioButton(caption), name);
}

QLabel* NewHint(const QString& text) {
    QLabel* hint = NewText(text, u"quiet"_s);
    hint->setWordWrap(false);
    return hint;
}

QHBoxLayout* Row(std::initializer_list<QWidget*> widgets) {
    auto* row = new QHBoxLayout;
    for (QWidget* widget : widgets)
        row->addWidget(widget);
    row->addStretch();
    return row;
}

// Several frames have a choice of the same words, so each has a letter that leads to what is chosen in it,
// and tells a screen reader what it is about.
QGroupBox* Frame(const QString& title, std::initializer_list<QLayout*> rows) {
    auto* frame = new QGroupBox(title);
    auto* column = new QVBoxLayout(frame);
    for (QLayout* row : rows)
        column->addLayout(row);
    for (auto* option : frame->findChildren<QRadioButton*>())
        option->setAccessibleName(QString(title).remove(u'&') + u": "_s + option->text().remove(u':'));
    return frame;
}

QGroupBox* TypeFrame() {
    return Frame(u"&Kind of profile"_s, {Row({
                                            NewOption("optFilterOff"_L1, u"Filter Off"_s),
                                            NewOption("optFilterBands"_L1, u"Bands"_s),
                                            NewOption("optFilterComedy"_L1, u"Comedy"_s),
                                            NewOption("optFilterFilm"_L1, u"Film"_s),
                                            NewOption("optFilterPeople"_L1, u"People"_s),
                                        })});
}

QGroupBox* GenderFrame() {
    return Frame(u"&Gender"_s, {Row({
                                   NewOption("optFilterGenderOff"_L1, u"Filter Off"_s),
                                   NewOption("optFilterMale"_L1, u"Male"_s),
                                   NewOption("optFilterFemale"_L1, u"Female"_s),
                               })});
}

QGroupBox* AgeFrame() {
    auto* youngest = Named(new QComboBox, "cboFilterAge1"_L1);
    auto* oldest = Named(new QComboBox, "cboFilterAge2"_L1);
    return Frame(u"&Age"_s, {Row({NewOption("optFilterAgeOff"_L1, u"Filter Off"_s)}),
                             Row({
                                 NewOption("optFilterAgeOn"_L1, u"Age:"_s),
                                 NewCaptionOf(*youngest, u"from"_s, u"Youngest age"_s),
                                 youngest,
                                 NewCaptionOf(*oldest, u"to"_s, u"Oldest age"_s),
                                 oldest,
                             })});
}

QGroupBox* LocationFrame() {
    QLineEdit* places = NewLine("txtFilterLocation"_L1, u"Locations"_s);
    places->setToolTip(u"Seperate multiple locations by comma"_s);
    auto* place = new QHBoxLayout;
    place->addWidget(NewOption("optFilterLocation"_L1, u"Location:"_s));
    place->addWidget(places, 1);
    return Frame(u"&Location"_s, {Row({NewOption("optFilterLocationOff"_L1, u"Filter Off"_s)}), place,
                                  Row({NewHint(u"Seperate multiple locations by comma"_s)})});
}

QGroupBox* LastLoginFrame() {
    QLineEdit* days = NewLine("txtFilterLastLoginDays"_L1, u"Days since the last login"_s);
    days->setMaximumWidth(days->fontMetrics().averageCharWidth() * 9);
    return Frame(u"La&st login"_s, {Row({
                                        NewOption("optFilterLastLoginOff"_L1, u"Filter Off"_s),
                                        NewOption("optFilterOnlineNow"_L1, u"Online now"_s),
                                    }),
                                    Row({
                                        NewOption("optFilterLastLoginOn"_L1, u"Last login within"_s),
                                        days,
                                        new QLabel(u"days"_s),
                                    })});
}

QGroupBox* WhenFrame() {
    return Frame(u"&When to filter"_s, {Row({
                                           NewOption("optFilterWhenGathering"_L1, u"Filter when gathering"_s),
                                           NewOption("optFilterWhenSending"_L1, u"Filter when sending"_s),
                                       })});
}

} // namespace

frmFilters::frmFilters(const FormContext& context) : Form(context, u"frmFilters"_s, u"Filter Options"_s) {
    auto* column = new QVBoxLayout(this);
    for (QGroupBox* frame :
         {TypeFrame(), GenderFrame(), AgeFrame(), LocationFrame(), LastLoginFrame(), WhenFrame()})
        column->addWidget(frame);
    column->addStretch();
    column->addWidget(
        NewButtonRow({NewButton("cmdOK"_L1, u"&OK"_s), NewButton("cmdCancel"_L1, u"Cancel"_s)}));
}

} // namespace qlm
