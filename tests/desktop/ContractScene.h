// SPDX-License-Identifier: MIT
#pragma once

#include "tests/desktop/GnomeScene.h"
#include "tests/desktop/WaylandScene.h"
#include "tests/desktop/X11Scene.h"

#include <optional>
#include <vector>

// What a person does on a desktop, and what Ticklog sees. Programs and windows are numbered from 0.
class ContractScene {
public:
    virtual ~ContractScene() = default;

    virtual Sight& sight() = 0;
    virtual int start(const QString& program) = 0;
    // Opens a window and waits until it is listed.
    virtual int open(int program, const QString& title) = 0;
    virtual void activate(int window) = 0;
    virtual void setTitle(int window, const QString& title) = 0;
    virtual void close(int window) = 0;
    // Minimises it, or whatever else takes a window from this desktop's screen.
    virtual void putAway(int window) = 0;
    virtual void die(int program) = 0;
    // Absent on desktops that do not tell.
    virtual std::optional<std::int64_t> process(int program) const = 0;
};

class X11ContractScene : public ContractScene {
public:
    explicit X11ContractScene(const QString& windowManager)
        : m_scene(windowManager) {}

    Sight& sight() override { return m_scene; }

    int start(const QString& program) override {
        m_names.push_back(program.toUtf8());
        m_programs.push_back(std::make_unique<XClient>(m_scene.desk));
        return int(m_programs.size()) - 1;
    }

    int open(int program, const QString& title) override {
        const XWindowLook look{.title = title.toUtf8(),
                               .instanceName = m_names[program].toLower(),
                               .className = m_names[program]};
        m_windows.push_back({program, m_programs[program]->open(look)});
        waitFor([&] { return sight().titles().contains(title); });
        return int(m_windows.size()) - 1;
    }

    void activate(int window) override { client(window).activate(m_windows[window].number); }
    void setTitle(int window, const QString& title) override {
        client(window).setTitle(m_windows[window].number, title.toUtf8());
    }
    void close(int window) override { client(window).destroy(m_windows[window].number); }
    void putAway(int window) override { client(window).minimise(m_windows[window].number); }
    void die(int program) override { m_programs[program]->die(); }
    std::optional<std::int64_t> process(int program) const override {
        return m_programs[program]->processIdentifier();
    }

private:
    struct Window {
        int program;
        xcb_window_t number;
    };

    XClient& client(int window) { return *m_programs[m_windows[window].program]; }

    X11Scene m_scene;
    std::vector<QByteArray> m_names;
    std::vector<std::unique_ptr<XClient>> m_programs;
    std::vector<Window> m_windows;
};

template<class Scene, bool tellsProcesses>
class WaylandContractScene : public ContractScene {
public:
    Sight& sight() override { return m_scene; }

    int start(const QString& program) override {
        m_programs.push_back(std::make_unique<WaylandClient>(m_scene.desk, program));
        return int(m_programs.size()) - 1;
    }

    int open(int program, const QString& title) override {
        m_windows.push_back({program, m_programs[program]->open(title), title});
        waitFor([&] { return sight().titles().contains(title); });
        return int(m_windows.size()) - 1;
    }

    void activate(int window) override {
        m_scene.desk.activate(m_windows[window].title);
        client(window).awaitFocus(m_windows[window].number);
    }
    void setTitle(int window, const QString& title) override {
        m_windows[window].title = title;
        client(window).setTitle(m_windows[window].number, title);
    }
    void close(int window) override { client(window).close(m_windows[window].number); }
    void putAway(int window) override { m_scene.desk.putAway(m_windows[window].title); }
    void die(int program) override { m_programs[program]->die(); }
    std::optional<std::int64_t> process(int program) const override {
        return tellsProcesses ? std::optional(m_programs[program]->processIdentifier()) : std::nullopt;
    }

private:
    struct Window {
        int program;
        int number;
        QString title;
    };

    WaylandClient& client(int window) { return *m_programs[m_windows[window].program]; }

    Scene m_scene;
    std::vector<std::unique_ptr<WaylandClient>> m_programs;
    std::vector<Window> m_windows;
};

// `desktop` is a window manager or a compositor.
inline std::unique_ptr<ContractScene> makeContractScene(const QString& desktop) {
    if (desktop == QLatin1String("sway"))
        return std::make_unique<WaylandContractScene<SwayScene, false>>();
    if (desktop == QLatin1String("labwc"))
        return std::make_unique<WaylandContractScene<LabwcScene, false>>();
    if (desktop == QLatin1String("phoc"))
        return std::make_unique<WaylandContractScene<PhocScene, false>>();
    if (desktop == QLatin1String("miriway"))
        return std::make_unique<WaylandContractScene<MiriwayScene, false>>();
    if (desktop == QLatin1String("kwin"))
        return std::make_unique<WaylandContractScene<KWinScene, true>>();
    if (desktop == QLatin1String("gnome"))
        return std::make_unique<WaylandContractScene<GnomeScene, true>>();
    return std::make_unique<X11ContractScene>(desktop);
}
