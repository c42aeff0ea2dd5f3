// SPDX-License-Identifier: MIT
#include "Faults.h"

#include <array>

namespace qlm::practice {

using namespace Qt::Literals::StringLiterals;

namespace {

struct FaultRow {
    FaultKind kind;
    QLatin1StringView name;
};

constexpr std::array faultRows{
    FaultRow{FaultKind::Slow, "slow"_L1},         FaultRow{FaultKind::Hang, "hang"_L1},
    FaultRow{FaultKind::Reset, "reset"_L1},       FaultRow{FaultKind::NoBody, "nobody"_L1},
    FaultRow{FaultKind::Error, "error"_L1},       FaultRow{FaultKind::LoggedOut, "loggedout"_L1},
    FaultRow{FaultKind::Limit, "limit"_L1},       FaultRow{FaultKind::Captcha, "captcha"_L1},
    FaultRow{FaultKind::Alert, "alert"_L1},       FaultRow{FaultKind::Unload, "unload"_L1},
    FaultRow{FaultKind::Endless, "endless"_L1},   FaultRow{FaultKind::Wrong, "wrong"_L1},
    FaultRow{FaultKind::Advert, "advert"_L1},     FaultRow{FaultKind::Moving, "moving"_L1},
    FaultRow{FaultKind::Foreign, "foreign"_L1},   FaultRow{FaultKind::Return, "return"_L1},
    FaultRow{FaultKind::Welcome, "welcome"_L1},   FaultRow{FaultKind::Cached, "cached"_L1},
    FaultRow{FaultKind::Birthday, "birthday"_L1}, FaultRow{FaultKind::Certificate, "certificate"_L1},
    FaultRow{FaultKind::Lost, "lost"_L1},         FaultRow{FaultKind::Blank, "blank"_L1},
};

QString Bare(const QString& prefix) {
    const QString lower = prefix.trimmed().toLower();
    return lower.startsWith("http://"_L1) ? lower.sliced(7) : lower;
}

bool Fits(const QString& prefix, const QString& address) {
    return prefix.endsWith(u'$') ? address == prefix.chopped(1) : address.startsWith(prefix);
}

} // namespace

std::optional<FaultKind> FaultNamed(const QString& name) {
    for (const FaultRow& row : faultRows)
        if (name == row.name)
            return row.kind;
    return std::nullopt;
}

void Faults::Set(Fault fault) {
    fault.prefix = Bare(fault.prefix);
    m_faults.removeIf(
        [&fault](const Fault& other) { return other.prefix == fault.prefix && other.mail == fault.mail; });
    m_faults.append(fault);
}

void Faults::Remove(const QString& prefix) {
    m_faults.removeIf([bare = Bare(prefix)](const Fault& fault) { return fault.prefix == bare; });
}

std::optional<Fault> Faults::Meet(const QString& address, const QString& mail) {
    const QString lower = address.toLower();
    for (auto fault = m_faults.rbegin(); fault != m_faults.rend(); ++fault) {
        if (fault->left == 0 || !Fits(fault->prefix, lower) ||
            (!fault->mail.isEmpty() && fault->mail != mail))
            continue;
        if (fault->left > 0)
            --fault->left;
        return *fault;
    }
    return std::nullopt;
}

} // namespace qlm::practice
