// SPDX-License-Identifier: MIT
#include "shell/Form.h"
#include "shell/FormParts.h"
#include "shell/Forms.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QRadioButton>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

QRadioButton* NewOption(QLatin1StringView name) {
    return Named(new QRadioButton, name);
}

QLayout* OptionRow(std::initializer_list<QLatin1StringView> names) {
    QHBoxLayout* row = NewRow({});
    int place = 0;
    for (const QLatin1StringView name : names)
        row->insertWidget(place++, NewOption(name));
    return row;
}

// Each frame has a letter that leads to what is chosen in it.
QGroupBox* TypeFrame() {
    return NewFrame(u"&Kind of profile"_s,
                    {OptionRow({"optFilterOff"_L1, "optFilterBands"_L1, "optFilterComedy"_L1,
                                "optFilterFilm"_L1, "optFilterPeople"_L1})});
}

QGroupBox* GenderFrame() {
    return NewFrame(u"&Gender"_s,
                    {OptionRow({"optFilterGenderOff"_L1, "optFilterMale"_L1, "optFilterFemale"_L1})});
}

QGroupBox* AgeFrame() {
    auto* youngest = Named(new QComboBox, "cboFilterAge1"_L1);
    auto* oldest = Named(new QComboBox, "cboFilterAge2"_L1);
    return NewFrame(u"&Age"_s, {OptionRow({"optFilterAgeOff"_L1}),
                                NewRow({NewOption("optFilterAgeOn"_L1), NewCaptionOf(*youngest), youngest,
                                        NewCaptionOf(*oldest), oldest})});
}

QGroupBox* LocationFrame() {
    auto* place = new QHBoxLayout;
    place->addWidget(NewOption("optFilterLocation"_L1));
    place->addWidget(NewLine("txtFilterLocation"_L1), 1);
    QLabel* hint = NewText(u"Seperate multiple locations by comma"_s, u"quiet"_s);
    hint->setWordWrap(false);
    return NewFrame(u"&Location"_s, {OptionRow({"optFilterLocationOff"_L1}), place, NewRow({hint})});
}

QGroupBox* LastLoginFrame() {
    return NewFrame(u"La&st login"_s,
                    {OptionRow({"optFilterLastLoginOff"_L1, "optFilterOnlineNow"_L1}),
                     NewRow({NewOption("optFilterLastLoginOn"_L1), NewNumber("txtFilterLastLoginDays"_L1, 9),
                             new QLabel(u"days"_s)})});
}

QGroupBox* WhenFrame() {
    return NewFrame(u"&When to filter"_s,
                    {OptionRow({"optFilterWhenGathering"_L1, "optFilterWhenSending"_L1})});
}

} // namespace

void BuildFilters(Form& form) {
    auto* column = new QVBoxLayout(&form);
    for (QGroupBox* frame :
         {TypeFrame(), GenderFrame(), AgeFrame(), LocationFrame(), LastLoginFrame(), WhenFrame()})
        column->addWidget(frame);
    column->addStretch();
    column->addWidget(NewButtonRow({"cmdOK"_L1, "cmdCancel"_L1}));
}

} // namespace qlm
