// SPDX-License-Identifier: MIT
#include "UsedProgram.h"
#include "accounts/AccountFile.h"
#include "core/FileSystem.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <gtest/gtest.h>

namespace qlm {

namespace {

const QString Fields = u"Field Entries"_s;

QByteArray Contents(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error("cannot read " + path.toStdString());
    return file.readAll();
}

} // namespace

UsedProgram::UsedProgram(const QString& folder) : m_path(folder) {}

UsedProgram::UsedProgram(quint16 proxyPort)
    : m_folder(std::make_unique<QTemporaryDir>()), m_path(m_folder->path()) {
    QDir().mkpath(DataFile({}));
    QString deployment = QString::fromUtf8(Contents(QStringLiteral(DEPLOYMENT)));
    static const QRegularExpression proxy(u"^Proxy=.*$"_s, QRegularExpression::MultilineOption);
    deployment.replace(proxy, u"Proxy=127.0.0.1:"_s + QString::number(proxyPort));
    Write(File(u"deployment.ini"_s), deployment.toUtf8());
    Write(File(u"timedelay.htm"_s), Contents(QStringLiteral(COVER_PAGE)));
    Write(File(u"scalemodelight.txt"_s), EncodeAccountLine(u"a@example.com;secret"_s).toLatin1() + "\r\n");
    Set(Fields, u"Login - chkTOS"_s, u"1"_s);
    Set(Fields, u"Login - txtEmail"_s, u"a@example.com"_s);
    Set(Fields, u"chkSaveScanned"_s, u"1"_s);
}

UsedProgram::~UsedProgram() {
    if (!m_folder)
        return;
    m_folder->setAutoRemove(!testing::Test::HasFailure());
    if (testing::Test::HasFailure())
        std::fprintf(stderr, "the program's folders: %s\n", qUtf8Printable(m_path));
}

QStringList UsedProgram::Arguments() const {
    return {u"--guided"_s, m_path, u"--resume"_s};
}

QtPlatformOptions UsedProgram::Options(int clockRate) const {
    return {m_path + u"/profile"_s, File(u"local"_s), File(u"deployment.ini"_s), clockRate};
}

void UsedProgram::Write(const QString& path, const QByteArray& bytes) const {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.flush())
        throw std::runtime_error("cannot write " + path.toStdString());
}

QByteArray UsedProgram::Read(const QString& path) const {
    return QFile::exists(path) ? Contents(path) : QByteArray();
}

void UsedProgram::SaveList(const QStringList& ids) const {
    Write(File(u"Gathered.txt"_s), ids.join(u"\r\n"_s).toLatin1() + "\r\n");
}

void UsedProgram::Set(const QString& section, const QString& key, const QString& value) const {
    QtSettings settings(QFileInfo(SettingsFile()).path());
    settings.SaveSetting(section, key, value);
    settings.Sync();
}

void UsedProgram::SetDelay(int seconds) const {
    Set(u"General"_s, u"TimeDelayFrom"_s, QString::number(seconds));
    Set(u"General"_s, u"TimeDelayTo"_s, QString::number(seconds));
}

QStringList UsedProgram::Log() const {
    QStringList lines = QString::fromLatin1(LogBytes()).split(u"\r\n"_s);
    lines.removeLast();
    return lines;
}

QStringList SomeTargets(int count, int first) {
    QStringList ids;
    for (int i = 0; i < count; ++i)
        ids.append(QString::number(first + i));
    return ids;
}

} // namespace qlm
