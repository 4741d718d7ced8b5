// SPDX-License-Identifier: MIT
#pragma once

#include "platform/SystemTray.h"
#include "platform/bus/BusService.h"

#include <chrono>

// The desktop's tray: a service on the session bus that takes icons (StatusNotifierItem) if there is one,
// else a program on the display that embeds windows. Main thread only.
class LinuxSystemTray : public SystemTray {
public:
    // How long to wait for the service: panels start at the same time, and the first icon decides for good.
    static constexpr std::chrono::seconds kPatience{2};
    // A panel that is restarted is back after this time.
    static constexpr std::chrono::seconds kLossPatience{3};

    // Everything outlives this.
    LinuxSystemTray(Bus& sessionBus, RunLoop& runLoop, SystemLog& log);

    // Whether a program embeds icons now. False until this is called.
    void setEmbedding(bool isThere);

    Offer offer() const override { return m_offer; }
    Subscription observe(News::Hearer hearer) override { return m_changes.observe(std::move(hearer)); }
    QString describe() const override;

private:
    void follow();
    void askForHost();
    void setHost(bool isThere);
    void update();
    bool isThere() const;
    void setOffer(Offer offer);

    RunLoop& m_runLoop;
    SystemLog& m_log;
    News m_changes;
    Offer m_offer = Offer::Unknown;
    // Once it was Embedded or Exported, it stays that.
    Offer m_choice = Offer::None;
    bool m_hasHost = false;
    bool m_isEmbedding = false;
    std::unique_ptr<RunLoopTimer> m_waiting;
    std::unique_ptr<RunLoopTimer> m_loss;
    BusService m_watcher;
    std::unique_ptr<BusSignal> m_hostRegistered;
    std::unique_ptr<BusSignal> m_hostUnregistered;
    Subscription m_presence;
};
