// SPDX-License-Identifier: MIT
#include "ContractTest.h"
#include "core/FileDownload.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace qlm {

class DownloadContract : public ContractTest {
protected:
    using Told = std::vector<std::pair<qint64, qint64>>;

    // What stands in the folder of the file that is downloaded.
    QStringList Files() { return QDir(folder.path()).entryList(QDir::Files, QDir::Name); }
    QByteArray Content() {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }
    void Fetch(const QString& address) {
        const std::unique_ptr<Download> download = world->Http().Download(address);
        SaveDownload(*download, files, path,
                     [this](qint64 bytes, qint64 announced) { told.emplace_back(bytes, announced); });
    }
    // Nothing is left of it, and what was there still is.
    void ExpectRefused(const QString& address) {
        files.WriteBytes(path, "before");
        EXPECT_THROW(Fetch(address), HttpError) << address.toStdString();
        EXPECT_EQ(Content(), "before");
        EXPECT_EQ(Files(), QStringList{u"file.bin"_s});
    }

    QTemporaryDir folder;
    QString path = folder.filePath(u"file.bin"_s);
    FileSystem files;
    Told told;
};

TEST_F(DownloadContract, TheFileIsWholeAndItsProgressTold) {
    const QString text = QString(200'000, u'x') + u"end"_s;
    Serve(u"update"_s, text);
    Fetch(At(u"update"_s));
    EXPECT_EQ(Content(), text.toUtf8());
    EXPECT_EQ(Files(), QStringList{u"file.bin"_s});
    ASSERT_GT(told.size(), 2U);
    EXPECT_EQ(told.back(), (Told::value_type{200'003, 200'003}));
    for (size_t i = 1; i < told.size(); ++i)
        EXPECT_LE(told[i - 1].first, told[i].first);
}

TEST_F(DownloadContract, AnEmptyFileIsAFile) {
    Serve(u"empty"_s, {});
    Fetch(At(u"empty"_s));
    EXPECT_EQ(Content(), QByteArray());
}

TEST_F(DownloadContract, WhatDoesNotComeWholeLeavesNothing) {
    Serve(u"reset"_s, {}, {.fault = ServeFault::Reset});
    Serve(u"hang"_s, {}, {.fault = ServeFault::Hang});
    Serve(u"cut"_s, QString(5'000, u'x'), {.fault = ServeFault::BreakOff});
    Serve(u"missing"_s, u"no such file"_s, {.status = 404});
    for (const QString& name : {u"reset"_s, u"hang"_s, u"cut"_s, u"missing"_s})
        ExpectRefused(At(name));
}

TEST_F(DownloadContract, MessagesArePumpedMeanwhile) {
    Serve(u"update"_s, QString(5'000, u'x'), {.delayMs = 100});
    int ticks = 0;
    const Timer timer(pump.Queue(), 10, true, [&] { ++ticks; });
    Fetch(At(u"update"_s));
    EXPECT_GE(ticks, 3);
}

TEST_F(DownloadContract, TheUserMayCancelIt) {
    files.WriteBytes(path, "before");
    Serve(u"update"_s, QString(5'000, u'x'), {.delayMs = 400});
    const std::unique_ptr<Download> download = world->Http().Download(At(u"update"_s));
    const qint64 startMs = pump.NowMs();
    pump.Queue().Post([&] { download->Cancel(); });
    EXPECT_THROW(SaveDownload(*download, files, path, [](qint64, qint64) {}), HttpError);
    EXPECT_LT(pump.NowMs(), startMs + 300);
    EXPECT_EQ(Content(), "before");
    EXPECT_EQ(Files(), QStringList{u"file.bin"_s});
}

} // namespace qlm
