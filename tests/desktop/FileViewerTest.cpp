// SPDX-License-Identifier: MIT
#include "platform/foundation/time/QtRunLoop.h"
#include "platform/linux/FreedesktopFileViewer.h"
#include "tests/desktop/harness/SessionBus.h"
#include "tests/desktop/services/ServiceScript.h"
#include "tests/fakes/RecordingLog.h"

#include <gtest/gtest.h>

namespace {

class FileViewerTest : public testing::Test {
protected:
    TemporaryHome m_home;
    RecordingLog m_log;
    QtRunLoop m_runLoop{m_log};
    QStringList m_opened;
    bool m_canOpen = true;
    FreedesktopFileViewer::FolderOpener m_opener = [this](const QString& folder) {
        m_opened << folder;
        return m_canOpen;
    };
};

TEST_F(FileViewerTest, theFileManager_isAskedToShowTheFile) {
    SessionBus daemon(m_home.environment(), m_home.runtimeFolder());
    Bus bus(Bus::atAddress(daemon.address()), m_runLoop, m_log);
    FreedesktopFileViewer viewer(bus, m_log, m_opener);
    ServiceScript manager(m_home, QStringLiteral("filemanager.py"), {daemon.address()});
    viewer.reveal(QStringLiteral("/home/me/My times ä.tkd"));
    EXPECT_EQ(manager.hear(), QStringLiteral("file:///home/me/My%20times%20%C3%A4.tkd"));
    EXPECT_EQ(m_opened, QStringList());
}

TEST_F(FileViewerTest, withoutAFileManager_theFolderIsOpened) {
    SessionBus daemon(m_home.environment(), m_home.runtimeFolder());
    Bus bus(Bus::atAddress(daemon.address()), m_runLoop, m_log);
    FreedesktopFileViewer viewer(bus, m_log, m_opener);
    viewer.reveal(QStringLiteral("/home/me/times.tkd"));
    EXPECT_TRUE(waitFor([this] { return m_opened == QStringList{QStringLiteral("/home/me")}; }));
}

TEST_F(FileViewerTest, withoutABusAndWithoutAnOpener_theLogSaysSo) {
    m_canOpen = false;
    Bus bus(Bus::atAddress(QStringLiteral("unix:path=/nowhere/bus")), m_runLoop, m_log);
    FreedesktopFileViewer viewer(bus, m_log, m_opener);
    viewer.reveal(QStringLiteral("/home/me/times.tkd"));
    EXPECT_TRUE(waitFor([this] { return m_log.mentions(QStringLiteral("No file manager")); }));
}

} // namespace
