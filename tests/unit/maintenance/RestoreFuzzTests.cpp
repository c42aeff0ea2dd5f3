// SPDX-License-Identifier: MIT
// Archives that have suffered, or that somebody has worked on: whatever is in them, nothing crashes, and
// nothing is written outside the folder.
#include "SimulatedProgram.h"
#include "maintenance/BackupSet.h"
#include "maintenance/RestoreCheck.h"

#include <QDirIterator>
#include <random>

using namespace Qt::Literals::StringLiterals;

namespace qlm {
namespace {

class RestoreFuzz : public SimulatedProgram {
protected:
    QByteArray Ordinary() {
        return platform->Archive().Write(
            {{u"FriendsLog.txt"_s, "1001\r\n1002\r\n"},
             {u"ACCOUNTS/a@example.com/MessagesList.txt"_s, QByteArray(300, 'm')},
             {u"ACCOUNTS/b@example.com/"_s, {}},
             {u"GROUP INVITE LOGS/Cats.txt"_s, "1003\r\n"}});
    }
    size_t Below(size_t limit) { return std::uniform_int_distribution<size_t>(0, limit - 1)(random); }
    qsizetype PlaceIn(const QByteArray& bytes) {
        return static_cast<qsizetype>(Below(static_cast<size_t>(bytes.size())));
    }

    // One to four changes, each of a kind that a broken disk or a clever person would make.
    QByteArray Damaged(QByteArray bytes) {
        static const QByteArray pieces[] = {"../",
                                            "/etc/",
                                            "..\\",
                                            "C:",
                                            "PK\1\2",
                                            "PK\3\4",
                                            "PK\5\6",
                                            QByteArray("\xff\xff\xff\xff", 4),
                                            QByteArray("\0\0\0\0", 4)};
        for (size_t changes = Below(4) + 1; changes > 0 && !bytes.isEmpty(); --changes) {
            const qsizetype place = PlaceIn(bytes);
            switch (Below(5)) {
            case 0:
                bytes[place] = static_cast<char>(Below(256));
                break;
            case 1:
                bytes[place] = static_cast<char>(bytes.at(place) ^ (1 << Below(8)));
                break;
            case 2:
                bytes.replace(place, 4, pieces[Below(std::size(pieces))]);
                break;
            case 3:
                bytes.truncate(place);
                break;
            default:
                bytes.insert(place, bytes.mid(PlaceIn(bytes), static_cast<qsizetype>(Below(60))));
            }
        }
        return bytes;
    }

    // True for an archive that would be restored, all of it read.
    bool Survives(const QByteArray& bytes) {
        try {
            const auto reader = platform->Archive().Read(bytes);
            if (!WhyNotRestored(reader->Entries(), bytes.size()).isEmpty())
                return false;
            const BackupSet set(app->files, app->state.ProgramFolder);
            for (size_t i = 0; i < reader->Entries().size(); ++i)
                if (const auto place = set.PlaceOf(reader->Entries()[i].name)) {
                    ExpectInside(place->name);
                    reader->Content(i);
                }
            return true;
        } catch (const ArchiveError&) {
            return false;
        }
    }
    void ExpectInside(const QString& name) {
        const QString root = QDir::cleanPath(app->state.ProgramFolder) + u'/';
        const QString path = QDir::cleanPath(app->ProgramFile(name));
        EXPECT_TRUE(path.startsWith(root)) << name.toStdString();
    }

    std::mt19937 random{20090601};
};

} // namespace

TEST_F(RestoreFuzz, AHundredThousandDamagedArchivesAreReadOrRefused) {
    const QByteArray whole = Ordinary();
    ASSERT_TRUE(Survives(whole));
    int survivors = 0;
    for (int i = 0; i < 100'000; ++i)
        survivors += Survives(Damaged(whole)) ? 1 : 0;
    EXPECT_GT(survivors, 1'000) << "nothing but refusals tells little";
    EXPECT_LT(survivors, 50'000);
}

TEST_F(RestoreFuzz, NothingIsWrittenOutsideTheFolder) {
    const QByteArray whole = Ordinary();
    const QString archive = folder.filePath(u"some.qlm"_s);
    for (int i = 0; i < 100; ++i) {
        app->files.WriteBytes(archive, Damaged(whole));
        dialogs.answers = {Dialogs::Answer::Ok};
        dialogs.files.push_back(archive);
        app->commands.Run(u"mnuRestore_Click"_s);
    }
    const QString inside = QDir::cleanPath(app->state.ProgramFolder) + u'/';
    const QString data = QDir::cleanPath(app->state.DataFolder) + u'/';
    QDirIterator all(folder.path(), QDir::Files | QDir::Hidden | QDir::System, QDirIterator::Subdirectories);
    while (all.hasNext()) {
        const QString path = all.next();
        EXPECT_TRUE(path.startsWith(inside) || path.startsWith(data) || path == archive)
            << path.toStdString();
    }
}

} // namespace qlm
