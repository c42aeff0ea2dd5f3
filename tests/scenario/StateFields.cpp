// SPDX-License-Identifier: MIT
#include "StateFields.h"
#include "Arguments.h"

#include <QHash>
#include <variant>

namespace qlm::scenario {

using namespace Qt::Literals::StringLiterals;

namespace {

using Field = std::variant<QString RunState::*, QStringList RunState::*, IdList RunState::*, bool RunState::*,
                           qint16 RunState::*, qint32 RunState::*>;

const QHash<QString, Field>& Fields() {
    static const QHash<QString, Field> fields{
#define FIELD(name) {QStringLiteral(#name), &RunState::name},
#include "RunStateFields.inc"
#undef FIELD
    };
    return fields;
}

Field FieldOf(const QString& name) {
    const auto found = Fields().constFind(name);
    if (found == Fields().constEnd())
        Fail(u"the run state has no field %1"_s.arg(name));
    return *found;
}

struct Reader {
    const RunState& state;
    QString operator()(QString RunState::*field) const { return state.*field; }
    QString operator()(QStringList RunState::*field) const { return (state.*field).join(u'\n'); }
    QString operator()(IdList RunState::*field) const { return (state.*field).ToStringList().join(u'\n'); }
    QString operator()(bool RunState::*field) const { return state.*field ? u"True"_s : u"False"_s; }
    QString operator()(qint16 RunState::*field) const { return QString::number(state.*field); }
    QString operator()(qint32 RunState::*field) const { return QString::number(state.*field); }
};

struct Writer {
    RunState& state;
    const QString& text;
    void operator()(QString RunState::*field) const { state.*field = text; }
    void operator()(QStringList RunState::*field) const { state.*field = text.split(u'\n'); }
    void operator()(IdList RunState::*field) const { state.*field = IdList(text.split(u'\n')); }
    void operator()(bool RunState::*field) const {
        if (text.compare(u"True", Qt::CaseInsensitive) != 0 &&
            text.compare(u"False", Qt::CaseInsensitive) != 0)
            Fail(u"True or False, not %1"_s.arg(text));
        state.*field = text.compare(u"True", Qt::CaseInsensitive) == 0;
    }
    void operator()(qint16 RunState::*field) const { state.*field = static_cast<qint16>(Number()); }
    void operator()(qint32 RunState::*field) const { state.*field = Number(); }
    int Number() const {
        bool isNumber = false;
        const int number = text.toInt(&isNumber);
        if (!isNumber)
            Fail(u"not a number: %1"_s.arg(text));
        return number;
    }
};

} // namespace

bool HasStateField(const QString& name) {
    return Fields().contains(name);
}

QString ReadStateField(const RunState& state, const QString& name) {
    return std::visit(Reader{state}, FieldOf(name));
}

void WriteStateField(RunState& state, const QString& name, const QString& text) {
    std::visit(Writer{state, text}, FieldOf(name));
}

bool SameStateText(const RunState& state, const QString& name, const QString& expected) {
    const bool isFlag = std::holds_alternative<bool RunState::*>(FieldOf(name));
    return ReadStateField(state, name).compare(expected, isFlag ? Qt::CaseInsensitive : Qt::CaseSensitive) ==
           0;
}

} // namespace qlm::scenario
