// SPDX-License-Identifier: MIT
// The store on a real disk: killed while it is written, and when the disk is full.
#include "Classes/record/StoreFile.h"
#include "tests/Places.h"
#include "tests/fakes/NumberedSave.h"
#include "tests/fakes/RecordingLog.h"

#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <random>
#include <unistd.h>

namespace {

constexpr int kPatienceMs = 60'000;
const QString kWriter = QStringLiteral(TICKLOG_BINARY_DIR "/store-writer");

class StoreFileCrash : public testing::Test {
protected:
    struct Run {
        int exitCode;
        QByteArray output;
        QByteArray error;
    };

    static Run run(const QString& program, const QStringList& arguments) {
        QProcess process;
        process.start(program, arguments);
        EXPECT_TRUE(process.waitForFinished(kPatienceMs)) << program.toStdString();
        return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
    }
    int read() {
        const auto result = StoreFile(m_log).read(m_path);
        return result ? numberOfSave(*result) : -1;
    }
    static QByteArray content(const QString& path) {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
    }

    QTemporaryDir m_folder;
    QString m_path = m_folder.filePath(QStringLiteral("Store.tkd"));
    RecordingLog m_log;
};

// Lets the writer complete some saves, kills it at a random moment, and answers the number of the last
// completed save.
int killedAfter(const QString& path, int first, int saves, qint64 moreNanoseconds) {
    QProcess writer;
    writer.start(kWriter, {QStringLiteral("save"), path, QString::number(first), QStringLiteral("100000"),
                           QStringLiteral("200000")});
    QByteArray output;
    while (output.count('\n') < saves && writer.waitForReadyRead(kPatienceMs))
        output += writer.readAllStandardOutput();
    QElapsedTimer timer;
    timer.start();
    while (timer.nsecsElapsed() < moreNanoseconds) {
    }
    writer.kill();
    writer.waitForFinished(kPatienceMs);
    output += writer.readAllStandardOutput();
    return output.left(output.lastIndexOf('\n')).split('\n').last().toInt();
}

TEST_F(StoreFileCrash, aKilledProgram_leavesTheLastFinishedSaveOrTheNextOne) {
    const unsigned seed = std::random_device()();
    std::printf("seed %u\n", seed);
    std::mt19937 chance(seed);
    int interrupted = 0;
    int next = 1;
    for (int round = 1; round <= 200; ++round) {
        const int finished = killedAfter(m_path, next, 1 + int(chance() % 2), chance() % 25'000'000);
        ASSERT_GE(finished, next) << "round " << round;
        interrupted +=
            QFile::exists(m_path + QStringLiteral(".new")) || QFile::exists(m_path + QStringLiteral(".part"));
        const int found = read();
        ASSERT_TRUE(found == finished || found == finished + 1)
            << "round " << round << ", seed " << seed << ": " << found << " after " << finished;
        ASSERT_EQ(content(m_path), numberedSaveBytes(found, 200'000 + found % 7 * 1000)) << "round " << round;
        next = found + 1;
    }
    std::printf("%d saves, %d of 200 rounds ended in the middle of one\n", next - 1, interrupted);
    EXPECT_GT(interrupted, 20);
}

TEST_F(StoreFileCrash, aFileThatMayNotGrow_keepsTheEarlierAccount) {
    const auto save = [&](const char* number, const char* length, const QStringList& limit) {
        return run(kWriter, QStringList{QStringLiteral("save"), m_path, QLatin1String(number),
                                        QStringLiteral("1"), QLatin1String(length)} +
                                limit);
    };
    ASSERT_EQ(save("1", "50000", {}).exitCode, 0);
    const QByteArray before = content(m_path);
    const Run refused = save("2", "500000", {QStringLiteral("200000")});
    EXPECT_EQ(refused.exitCode, 1);
    EXPECT_TRUE(refused.error.contains("Store.tkd")) << refused.error.constData();
    EXPECT_EQ(content(m_path), before);
    EXPECT_EQ(read(), 1);
    EXPECT_EQ(QDir(m_folder.path()).entryList(QDir::Files).size(), 1);
}

// A disk of one megabyte in a mount namespace, which ends with the script. The first line says which saves a
// launch finds, and which is in the store itself.
constexpr const char* kFullDisk = R"(
set -e
mount -t tmpfs -o size=1m tmpfs "$1"
trap 'umount "$1"' EXIT
"$2" save "$1/Store.tkd" 1 1 100000 >/dev/null
cp "$1/Store.tkd" "$3"
! "$2" save "$1/Store.tkd" 2 1 "$4" >/dev/null
"$2" read "$1/Store.tkd"
cp "$1/Store.tkd" "$3.after"
chmod a+r "$3" "$3.after"
)";

class StoreFileFullDisk : public StoreFileCrash {
protected:
    // How this user may mount a disk that nobody else sees. Root may; most users may, as root of a namespace;
    // where that is forbidden, as in a chroot, users who may install packages may through sudo.
    static QStringList worldOfItsOwn() {
        const QString unshare = QStringLiteral("unshare");
        // In a chroot, the root is no mount whose propagation could be changed; the script unmounts its disk
        // itself.
        const QStringList ownMounts{unshare, QStringLiteral("-m"), QStringLiteral("--propagation"),
                                    QStringLiteral("unchanged")};
        if (::geteuid() == 0)
            return ownMounts;
        if (run(unshare, {QStringLiteral("-Urm"), QStringLiteral("true")}).exitCode == 0)
            return {unshare, QStringLiteral("-Urm")};
        return QStringList{QStringLiteral("sudo"), QStringLiteral("-n")} + ownMounts;
    }

    // What a launch finds after a save of `length` has filled the disk.
    int afterSaving(const char* length) {
        const QString disk = m_folder.filePath(QStringLiteral("disk"));
        const QString kept = m_folder.filePath(QStringLiteral("kept"));
        EXPECT_TRUE(QDir().mkdir(disk));
        QStringList command = worldOfItsOwn();
        command << QStringList{QStringLiteral("sh"),
                               QStringLiteral("-c"),
                               QLatin1String(kFullDisk),
                               QStringLiteral("sh"),
                               disk,
                               kWriter,
                               kept,
                               QLatin1String(length)};
        const QString program = command.takeFirst();
        const Run done = run(program, command);
        EXPECT_EQ(done.exitCode, 0) << done.error.constData();
        EXPECT_TRUE(done.error.contains("No space left")) << done.error.constData();
        EXPECT_EQ(content(kept + QStringLiteral(".after")), content(kept)) << "the store was touched";
        return done.output.trimmed().toInt();
    }
};

TEST_F(StoreFileFullDisk, noRoomForTheSidecar_keepsTheEarlierAccount) {
    EXPECT_EQ(afterSaving("2000000"), 1);
}

TEST_F(StoreFileFullDisk, noRoomForTheStoreToGrow_keepsTheEarlierAccountAndTheNewOneBesideIt) {
    EXPECT_EQ(afterSaving("600000"), 2);
}

} // namespace
