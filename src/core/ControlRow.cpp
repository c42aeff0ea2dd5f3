// SPDX-License-Identifier: MIT
#include "core/Controls.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

template <typename Value> ControlRow With(ControlRow row, Value ControlRow::*field, Value value) {
    row.*field = value;
    return row;
}

} // namespace

ControlRow ControlRow::Kept(const char* kindOfData, const char* settingsKey) const {
    return With(With(*this, &ControlRow::kind, kindOfData), &ControlRow::key, settingsKey);
}

ControlRow ControlRow::In(const char* groupName) const {
    return With(*this, &ControlRow::group, groupName);
}

ControlRow ControlRow::Holds(const char16_t* firstText) const {
    return With(*this, &ControlRow::text, firstText);
}

ControlRow ControlRow::Ticked() const {
    return With(*this, &ControlRow::ticked, true);
}

ControlRow ControlRow::Choices(QStringList (*items)()) const {
    return With(*this, &ControlRow::choices, items);
}

ControlRow ControlRow::Tip(const char16_t* words) const {
    return With(*this, &ControlRow::toolTip, words);
}

ControlRow ControlRow::Spoken(const char16_t* words) const {
    return With(*this, &ControlRow::spoken, words);
}

ControlRow ControlRow::Hint(const char16_t* words) const {
    return With(*this, &ControlRow::hint, words);
}

ControlRow ControlRow::Explains(const char16_t* words) const {
    return With(*this, &ControlRow::whatsThis, words);
}

ControlRow ControlRow::Picture(const char* drawing) const {
    return With(*this, &ControlRow::image, drawing);
}

ControlRow ControlRow::Runs(const char* sharedCommand) const {
    return With(*this, &ControlRow::command, sharedCommand);
}

ControlRow ControlRow::Begins() const {
    return With(*this, &ControlRow::begins, true);
}

QString ControlRow::PlainCaption() const {
    const QChar doubled(0xE000); // a private sign stands for "&&" meanwhile
    return QString::fromUtf16(caption).replace(u"&&"_s, doubled).remove(u'&').replace(doubled, u'&');
}

QString ControlRow::SpokenName() const {
    if (*spoken)
        return QString::fromUtf16(spoken);
    QString plain = PlainCaption();
    if (plain.endsWith(u':'))
        plain.chop(1);
    return plain;
}

QString ControlRow::Command() const {
    return command[0] ? QString::fromLatin1(command) : QString::fromLatin1(name) + u"_Click"_s;
}

} // namespace qlm
