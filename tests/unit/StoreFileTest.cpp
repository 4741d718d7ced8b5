// SPDX-License-Identifier: MIT
#include "Classes/record/StoreFile.h"
#include "platform/foundation/propertylists/PropertyList.h"
#include "platform/foundation/values/Assertions.h"
#include "tests/fakes/CrashingDisk.h"
#include "tests/fakes/NumberedSave.h"
#include "tests/fakes/RecordingLog.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using Fault = CrashingDisk::Fault;

namespace {

class StoreFileTest : public testing::Test {
protected:
    // Each launch of the program has a store object of its own.
    StoreFile launch(FileCalls& calls) { return StoreFile(m_log, calls); }

    // On a disk without faults.
    StoreFile launch() { return launch(m_sound); }

    // Sometimes longer, sometimes shorter than the last.
    qsizetype lengthOf(int number) const { return m_length + number % 2 * 3000; }
    std::function<void(PropertyListSink&)> save(int number) const {
        return numberedSave(number, lengthOf(number));
    }
    QByteArray bytesOf(int number) const { return numberedSaveBytes(number, lengthOf(number)); }

    bool write(int number) { return bool(launch().write(m_path, save(number))); }

    // The save that a launch reads: its number, 0 for none, -1 for a store that cannot be read, -2 for a
    // mixture.
    int read() { return read(m_sound); }

    int read(FileCalls& calls) {
        const auto result = launch(calls).read(m_path);
        if (!result)
            return result.failure().kind == Failure::Kind::NotFound ? 0 : -1;
        return numberOfSave(*result);
    }

    // The save in the file alone, as another program would read it.
    int readPlainly() const {
        const auto result = PropertyList::readFile(m_path);
        return result ? numberOfSave(*result) : -1;
    }

    void put(const QString& path, const QByteArray& content) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }

    void setWritten(const QString& path, int second) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        file.setFileTime(QDateTime::fromSecsSinceEpoch(1'700'000'000 + second), QFile::FileModificationTime);
    }

    static QByteArray content(const QString& path) {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
    }

    QStringList files() const { return QDir(m_folder.path()).entryList(QDir::Files); }

    QStringList aside() const { return files().filter(QStringLiteral(".damaged-")); }

    void clear() {
        for (const QString& name : files())
            QFile::remove(m_folder.filePath(name));
        m_log.lines.clear();
    }

    QTemporaryDir m_folder;
    QString m_path = m_folder.filePath(QStringLiteral("Store.tkd"));
    QString m_sidecar = m_path + QStringLiteral(".new");
    CrashingDisk m_disk{m_folder.path()};
    CrashingDisk m_sound{m_folder.path()};
    RecordingLog m_log;
    // Longer than the writer's chunks.
    qsizetype m_length = 66'000;
};

TEST_F(StoreFileTest, whatWasWritten_isReadAndNothingElseIsLeft) {
    EXPECT_EQ(read(), 0);
    for (const int number : {1, 2, 3}) {
        ASSERT_TRUE(launch(FileCalls::system()).write(m_path, save(number)));
        EXPECT_EQ(content(m_path), bytesOf(number));
        EXPECT_EQ(read(), number);
        EXPECT_EQ(files(), QStringList(QStringLiteral("Store.tkd")));
    }
    EXPECT_TRUE(m_log.lines.isEmpty()) << m_log.lines.join(u'\n').toStdString();
}

TEST_F(StoreFileTest, theStore_staysTheSameFile) {
    ASSERT_TRUE(write(1));
    const QString second = m_folder.filePath(QStringLiteral("Second name"));
    ASSERT_EQ(::link(QFile::encodeName(m_path).constData(), QFile::encodeName(second).constData()), 0);
    ASSERT_TRUE(write(2));
    EXPECT_EQ(content(second), bytesOf(2));
}

TEST_F(StoreFileTest, aNewStore_isForTheUserAlone) {
    const mode_t before = ::umask(0);
    ASSERT_TRUE(write(1));
    ::umask(before);
    EXPECT_EQ(QFileInfo(m_path).permissions() & QFile::Permissions(0x0077), QFile::Permissions());
}

TEST_F(StoreFileTest, aStoreThatIsALink_isWrittenWhereItLeads) {
    const QTemporaryDir elsewhere;
    const QString target = elsewhere.filePath(QStringLiteral("Target.tkd"));
    ASSERT_TRUE(QFile::link(target, m_path));
    for (const int number : {1, 2}) {
        ASSERT_TRUE(write(number));
        EXPECT_TRUE(QFileInfo(m_path).isSymLink());
        EXPECT_EQ(content(target), bytesOf(number));
    }
    put(target + QStringLiteral(".new"), bytesOf(3));
    EXPECT_EQ(read(), 3);
    EXPECT_EQ(QDir(elsewhere.path()).entryList(QDir::Files).size(), 1);
}

TEST_F(StoreFileTest, aFolderThatHasVanished_isAFailure) {
    ASSERT_TRUE(write(1));
    const QString path = m_folder.filePath(QStringLiteral("gone/Store.tkd"));
    const auto outcome = launch().write(path, save(1));
    ASSERT_FALSE(outcome);
    EXPECT_TRUE(outcome.failure().text.contains(QStringLiteral("gone/Store.tkd")));
}

TEST_F(StoreFileTest, aStoreThatIsAFolder_isAFailureAndLeavesNothingBehind) {
    ASSERT_TRUE(QDir().mkdir(m_path));
    EXPECT_FALSE(write(1));
    EXPECT_TRUE(files().isEmpty());
}

TEST_F(StoreFileTest, aBrokenContractWhileWriting_leavesTheStoreAlone) {
    ASSERT_TRUE(write(1));
    StoreFile store = launch();
    EXPECT_THROW(static_cast<void>(store.write(m_path, [](PropertyListSink& sink) { sink.endArray(); })),
                 InternalInconsistency);
    EXPECT_EQ(readPlainly(), 1);
    EXPECT_EQ(read(), 1);
    EXPECT_EQ(files().size(), 1);
}

TEST_F(StoreFileTest, anyCallThatFails_leavesTheOldContentOrTheNew) {
    int failures = 0;
    for (int number = 1;; ++number) {
        SCOPED_TRACE(testing::Message() << "call " << number);
        clear();
        ASSERT_TRUE(write(1));
        m_disk.arm(Fault::Fails, number, number % 2 ? EIO : ENOSPC);
        const bool written = bool(launch(m_disk).write(m_path, save(2)));
        if (!m_disk.happened)
            break;
        ++failures;
        const int found = read();
        EXPECT_TRUE(found == 2 || (found == 1 && !written)) << found;
        ASSERT_TRUE(write(3));
        EXPECT_EQ(read(), 3);
        EXPECT_EQ(files(), QStringList(QStringLiteral("Store.tkd")));
    }
    EXPECT_GE(failures, 20);
}

TEST_F(StoreFileTest, anyCallThatFallsShort_isMadeUpFor) {
    int shortages = 0;
    for (int number = 1;; ++number) {
        clear();
        ASSERT_TRUE(write(1));
        m_disk.arm(Fault::FallsShort, number);
        ASSERT_TRUE(launch(m_disk).write(m_path, save(2))) << number;
        ASSERT_EQ(content(m_path), bytesOf(2)) << number;
        if (number > m_disk.calls)
            break;
        shortages += m_disk.happened;
    }
    EXPECT_GE(shortages, 4);
}

TEST_F(StoreFileTest, aCrashAtAnyCall_leavesTheOldContentOrTheNew) {
    int crashes = 0;
    for (int number = 1;; ++number) {
        SCOPED_TRACE(testing::Message() << "call " << number);
        clear();
        ASSERT_TRUE(write(1));
        m_disk.arm(Fault::Crashes, number);
        try {
            ASSERT_TRUE(launch(m_disk).write(m_path, save(2)));
            break;
        } catch (const CrashingDisk::Crash&) {
            ++crashes;
        }
        const int found = read();
        EXPECT_TRUE(found == 1 || found == 2) << found;
        EXPECT_EQ(readPlainly(), found);
        EXPECT_EQ(files(), QStringList(QStringLiteral("Store.tkd")));
    }
    EXPECT_GE(crashes, 20);
}

TEST_F(StoreFileTest, aCrashInTheVeryFirstSave_leavesNothingOrThatSave) {
    int crashes = 0;
    for (int number = 1;; ++number) {
        SCOPED_TRACE(testing::Message() << "call " << number);
        clear();
        m_disk.arm(Fault::Crashes, number);
        try {
            ASSERT_TRUE(launch(m_disk).write(m_path, save(1)));
            break;
        } catch (const CrashingDisk::Crash&) {
            ++crashes;
        }
        const int found = read();
        EXPECT_TRUE(found == 0 || found == 1) << found;
    }
    EXPECT_GE(crashes, 20);
}

TEST_F(StoreFileTest, aCrashWhileAnEarlierCrashIsBeingMended_losesNothing) {
    m_length = 3000;
    int crashes = 0;
    for (int first = 1; first <= 30; ++first) {
        for (int second = 1; second <= 15; ++second) {
            SCOPED_TRACE(testing::Message() << "calls " << first << " and " << second);
            clear();
            ASSERT_TRUE(write(1));
            try {
                m_disk.arm(Fault::Crashes, first);
                static_cast<void>(launch(m_disk).write(m_path, save(2)));
            } catch (const CrashingDisk::Crash&) {
            }
            try {
                m_disk.arm(Fault::Crashes, second);
                read(m_disk);
            } catch (const CrashingDisk::Crash&) {
                ++crashes;
            }
            if (!m_disk.happened)
                second = 100;
            const int found = read();
            ASSERT_TRUE(found == 1 || found == 2) << found;
        }
    }
    EXPECT_GE(crashes, 50);
}

TEST_F(StoreFileTest, aCrashInTheSaveAfterAFailedOne_losesNothing) {
    m_length = 3000;
    int crashes = 0;
    for (int first = 1; first <= 30; ++first) {
        for (int second = 1; second <= 30; ++second) {
            SCOPED_TRACE(testing::Message() << "calls " << first << " and " << second);
            clear();
            ASSERT_TRUE(write(1));
            StoreFile running = launch(m_disk);
            m_disk.arm(Fault::Fails, first);
            const bool written = bool(running.write(m_path, save(2)));
            try {
                m_disk.arm(Fault::Crashes, second);
                static_cast<void>(running.write(m_path, save(3)));
            } catch (const CrashingDisk::Crash&) {
                ++crashes;
            }
            if (!m_disk.happened)
                second = 100;
            const int found = read();
            ASSERT_TRUE(found == 2 || found == 3 || (found == 1 && !written)) << found;
        }
    }
    EXPECT_GE(crashes, 400);
}

TEST_F(StoreFileTest, aPowerCutAtAnyCall_leavesTheLastFinishedSaveOrANewerOne) {
    m_length = 3000;
    const unsigned seed = std::random_device()();
    SCOPED_TRACE(testing::Message() << "seed " << seed);
    std::mt19937 chance(seed);
    int cuts = 0;
    for (int number = 1; number <= 30; ++number) {
        for (int round = 0; round < 30; ++round) {
            SCOPED_TRACE(testing::Message() << "call " << number << " round " << round);
            clear();
            m_disk.arm(Fault::None, 0);
            StoreFile running = launch(m_disk);
            ASSERT_TRUE(running.write(m_path, save(1)));
            m_disk.settle();
            int finished = 1;
            try {
                m_disk.arm(Fault::Crashes, number);
                if (running.write(m_path, save(2)))
                    finished = 2;
            } catch (const CrashingDisk::Crash&) {
                ++cuts;
            }
            m_disk.losePower(chance);
            const int found = read();
            ASSERT_TRUE(found == 2 || found == finished)
                << found << " of " << files().join(u' ').toStdString();
        }
    }
    EXPECT_GE(cuts, 500);
}

TEST_F(StoreFileTest, aFullDisk_keepsTheOldContentInPlaceAndTheNewInTheSidecar) {
    ASSERT_TRUE(write(1));
    m_disk.allocateError = ENOSPC;
    StoreFile running = launch(m_disk);
    for (const int number : {2, 3}) {
        const auto outcome = running.write(m_path, save(number));
        ASSERT_FALSE(outcome);
        EXPECT_EQ(outcome.failure().kind, Failure::Kind::CannotWrite);
        EXPECT_TRUE(outcome.failure().text.contains(m_sidecar));
        EXPECT_EQ(readPlainly(), 1);
    }
    EXPECT_EQ(read(), 3);
    EXPECT_EQ(readPlainly(), 3);
    EXPECT_TRUE(m_log.mentions(QStringLiteral("A save that was interrupted has been finished")));
}

TEST_F(StoreFileTest, fileSystemsThatCannotReserveOrCopy_areWrittenToAllTheSame) {
    m_disk.allocateError = EOPNOTSUPP;
    for (const int error : {EXDEV, ENOSYS, EINVAL, EOPNOTSUPP}) {
        m_disk.copyRangeError = error;
        ASSERT_TRUE(launch(m_disk).write(m_path, save(error)));
        EXPECT_EQ(content(m_path), bytesOf(error));
    }
}

TEST_F(StoreFileTest, aStoreThatCannotBeRead_isSetAsideBeforeTheNextSave) {
    for (const char* damage : {"", "<plist><dict>", "#?xml", "<plist><array/></plist>"}) {
        SCOPED_TRACE(damage);
        clear();
        put(m_path, damage);
        StoreFile store = launch();
        EXPECT_FALSE(store.read(m_path));
        EXPECT_TRUE(m_log.mentions(QStringLiteral("The store cannot be read")));
        EXPECT_EQ(content(m_path), damage);
        ASSERT_TRUE(store.write(m_path, save(1)));
        ASSERT_TRUE(store.write(m_path, save(2)));
        ASSERT_EQ(aside().size(), 1);
        EXPECT_EQ(content(m_folder.filePath(aside().first())), damage);
        EXPECT_TRUE(m_log.mentions(aside().first()));
        EXPECT_EQ(read(), 2);
    }
}

TEST_F(StoreFileTest, aStoreThatCannotBeSetAside_isNotOverwritten) {
    // A thousand names are taken.
    put(m_path, "damaged");
    setWritten(m_path, 0);
    const QString dated =
        m_path +
        QDateTime::fromSecsSinceEpoch(1'700'000'000).toString(QStringLiteral("'.damaged-'yyyyMMdd-HHmmss"));
    for (int i = 1; i <= 1000; ++i)
        put(i == 1 ? dated : QStringLiteral("%1-%2").arg(dated).arg(i), {});
    StoreFile store = launch();
    EXPECT_FALSE(store.read(m_path));
    EXPECT_FALSE(store.write(m_path, save(1)));
    EXPECT_EQ(content(m_path), "damaged");
}

TEST_F(StoreFileTest, aForeignFileThatIsOnlyRead_staysWhereItIs) {
    put(m_path, "damaged");
    EXPECT_FALSE(PropertyList::readFile(m_path));
    EXPECT_EQ(read(), -1);
    EXPECT_EQ(content(m_path), "damaged");
    EXPECT_TRUE(aside().isEmpty());
}

TEST_F(StoreFileTest, everyStateOfStoreAndSidecar_endsAsTheRuleSays) {
    struct Row {
        const char* what;
        QByteArray store;
        QByteArray sidecar;
        int storeWritten;
        int expected;
        int expectedAside;
    };

    const QByteArray none("none");
    const QByteArray torn = bytesOf(2).first(1000);
    const Row rows[] = {
        {"an old store and a newer sidecar", bytesOf(1), bytesOf(2), -10, 2, 0},
        {"a store of the sidecar's own second", bytesOf(1), bytesOf(2), 0, 2, 0},
        {"a torn store", torn, bytesOf(2), 10, 2, 0},
        {"an unfinished store", "#" + bytesOf(2).sliced(1), bytesOf(2), 10, 2, 0},
        {"a finished store", bytesOf(2), bytesOf(2), 10, 2, 0},
        {"a store that somebody has put there since", bytesOf(1), bytesOf(2), 10, 1, 1},
        {"no store", none, bytesOf(2), 0, 2, 0},
        {"a sidecar that is torn", bytesOf(1), torn, -10, 1, 1},
        {"both torn", torn, torn, -10, -1, 0},
        {"a torn sidecar alone", none, torn, 0, -1, 0},
        {"a sidecar that is no dictionary", bytesOf(1), "<plist><array/></plist>", -10, 1, 1},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        clear();
        put(m_sidecar, row.sidecar);
        setWritten(m_sidecar, 100);
        if (row.store != none) {
            put(m_path, row.store);
            setWritten(m_path, 100 + row.storeWritten);
        }
        StoreFile store = launch();
        EXPECT_EQ(read(), row.expected);
        EXPECT_EQ(aside().size(), row.expectedAside);
        EXPECT_EQ(QFile::exists(m_sidecar), row.expected < 0);
        EXPECT_FALSE(m_log.lines.isEmpty());
        // Whatever it was, it can be saved again, and nothing is lost without a line in the log.
        EXPECT_EQ(bool(store.read(m_path)), row.expected > 0);
        EXPECT_TRUE(store.write(m_path, save(5)));
        EXPECT_EQ(read(), 5);
    }
}

// A disk on which files with that ending belong to somebody else.
class StrangersDisk : public FileCalls {
public:
    explicit StrangersDisk(const char* ending)
        : m_ending(ending) {}

    int status(const char* path, struct stat& status) override {
        const int result = FileCalls::status(path, status);
        if (QByteArrayView(path).endsWith(m_ending))
            status.st_uid += 1;
        return result;
    }

private:
    QByteArray m_ending;
};

TEST_F(StoreFileTest, aSidecarOfSomebodyElse_isNoInterruptedSave) {
    StrangersDisk disk(".new");
    for (const bool isThere : {true, false}) {
        clear();
        if (isThere)
            put(m_path, bytesOf(1));
        put(m_sidecar, bytesOf(2));
        EXPECT_EQ(read(disk), isThere ? 1 : 0);
        EXPECT_EQ(readPlainly(), isThere ? 1 : -1) << "the store stays as it is";
        EXPECT_EQ(content(m_sidecar), bytesOf(2));
        EXPECT_TRUE(m_log.mentions(QStringLiteral("none of ours")));
    }
}

TEST_F(StoreFileTest, aSidecarThatIsALinkOrHasASecondName_isNoInterruptedSave) {
    const QString other = m_folder.filePath(QStringLiteral("Other.tkd"));
    for (const auto link : {::link, ::symlink}) {
        clear();
        put(m_path, bytesOf(1));
        put(other, bytesOf(2));
        ASSERT_EQ(link(QFile::encodeName(other).constData(), QFile::encodeName(m_sidecar).constData()), 0);
        EXPECT_EQ(read(), 1);
        ASSERT_TRUE(write(3));
        EXPECT_EQ(read(), 3);
        EXPECT_EQ(content(other), bytesOf(2));
    }
}

TEST_F(StoreFileTest, whatSomebodyHasPutInTheWayOfASave_isNeverWrittenTo) {
    const QString other = m_folder.filePath(QStringLiteral("Other.tkd"));
    put(other, "mine");
    const QString part = m_path + QStringLiteral(".part");
    ASSERT_EQ(::link(QFile::encodeName(other).constData(), QFile::encodeName(part).constData()), 0);
    EXPECT_TRUE(write(1));
    EXPECT_EQ(content(other), "mine");
    EXPECT_EQ(read(), 1);

    // In a folder where nobody can remove files of others.
    struct StickyDisk : FileCalls {
        int remove(const char*) override {
            errno = EPERM;
            return -1;
        }
    } sticky;
    put(part, "theirs");
    EXPECT_FALSE(launch(sticky).write(m_path, save(2)));
    EXPECT_EQ(content(part), "theirs");
    EXPECT_EQ(readPlainly(), 1);
}

} // namespace
