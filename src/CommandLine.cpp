// SPDX-License-Identifier: MIT
#include "CommandLine.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

Guidance GuidanceIn(const QStringList& arguments) {
    const qsizetype option = arguments.indexOf(u"--guided"_s);
    return {option < 0 ? QString() : arguments.value(option + 1, u"guided"_s),
            arguments.contains(u"--resume"_s)};
}

// A guided run has its folder emptied before anything is opened there, so it is the whole folder's.
QStringList FoldersToLock(const Guidance& guidance) {
    if (guidance.IsWanted())
        return {QDir(guidance.folder).absolutePath()};
    return {QtPlatform::DataFolder({}), QCoreApplication::applicationDirPath()};
}

// A guided run must neither see nor change what the user has: it works in a folder of its own, emptied first.
// A resumed one leaves the folder as it is and takes a deployment.ini from there.
QtPlatformOptions OptionsFor(const Guidance& guidance) {
    const QString installed = QCoreApplication::applicationDirPath();
    if (!guidance.IsWanted())
        return {installed, {}, {}};
    const QDir folder(QDir(guidance.folder).absoluteFilePath(u"profile"_s));
    if (!guidance.isResumed)
        QDir(folder).removeRecursively();
    QDir().mkpath(folder.path());
    folder.mkpath(u"Preview Templates"_s);
    for (const QString& file : {u"timedelay.htm"_s, u"Preview Templates/previewtemplateBUL.htm"_s,
                                u"Preview Templates/previewtemplateMSG.htm"_s})
        QFile::copy(installed + u'/' + file, folder.filePath(file));
    const QString own = folder.filePath(u"deployment.ini"_s);
    return {folder.path(), folder.filePath(u"local"_s),
            guidance.isResumed && QFile::exists(own) ? own : installed + u"/deployment.ini"_s};
}

} // namespace qlm
