// SPDX-License-Identifier: MIT
// A session manager for the programs that find it in SESSION_MANAGER, which is the first line it writes. Then
// it does what its standard input says, a command a line, and answers "ok" when every program has done its
// part: "save" what a session that goes on would come back with, "leave" the session, which asks for the
// same, "stay" after all, or "die".
#include <X11/ICE/ICElib.h>
#include <X11/ICE/ICEutil.h>
#include <X11/SM/SMlib.h>

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <poll.h>
#include <string>
#include <unistd.h>
#include <vector>

// The library provides this for session managers but declares it nowhere.
extern "C" int _IceTransNoListen(const char* protocol);

namespace {

class Manager {
public:
    Manager() {
        char error[256] = "";
        // Writing to a program that has ended must fail, not raise the signal.
        std::signal(SIGPIPE, SIG_IGN);
        IceSetIOErrorHandler([](IceConn) {});
        _IceTransNoListen("tcp");
        const auto anybody = [](char*) -> Bool { return True; };
        if (!SmsInitialize("Ticklog", "1", welcome, this, anybody, sizeof error, error) ||
            !IceListenForConnections(&m_listenerCount, &m_listeners, sizeof error, error)) {
            std::fprintf(stderr, "%s\n", error);
            std::exit(EXIT_FAILURE);
        }
        for (int i = 0; i < m_listenerCount; ++i)
            IceSetHostBasedAuthProc(m_listeners[i], anybody);
        std::cout << IceComposeNetworkIdList(m_listenerCount, m_listeners) << std::endl;
    }

    ~Manager() { IceFreeListenObjs(m_listenerCount, m_listeners); }

    // Serves programs and obeys what it reads until standard input ends.
    void serve() {
        while (turn())
            obeyWhatIsRead();
    }

private:
    struct Member {
        SmsConn connection;
        // Whether it was asked to save and has not answered yet.
        bool isSaving = false;
    };

    static Manager& of(SmPointer manager) { return *static_cast<Manager*>(manager); }

    static Status welcome(SmsConn connection, SmPointer manager, unsigned long* known, SmsCallbacks* calls,
                          char**) {
        of(manager).m_members.push_back({connection});
        *calls = {};
        calls->register_client = {registered, manager};
        calls->interact_request = {[](SmsConn asking, SmPointer, int) { SmsInteract(asking); }, manager};
        calls->interact_done = {[](SmsConn, SmPointer, Bool) {}, manager};
        calls->save_yourself_request = {[](SmsConn, SmPointer, int, Bool, int, Bool, Bool) {}, manager};
        calls->save_yourself_phase2_request = {
            [](SmsConn asking, SmPointer) { SmsSaveYourselfPhase2(asking); }, manager};
        calls->save_yourself_done = {saved, manager};
        calls->close_connection = {left, manager};
        calls->set_properties = {[](SmsConn, SmPointer, int count, SmProp** properties) {
                                     std::for_each_n(properties, count, SmFreeProperty);
                                     std::free(properties);
                                 },
                                 manager};
        calls->delete_properties = {[](SmsConn, SmPointer, int count, char** names) {
                                        std::for_each_n(names, count, std::free);
                                        std::free(names);
                                    },
                                    manager};
        calls->get_properties = {[](SmsConn asking, SmPointer) { SmsReturnProperties(asking, 0, nullptr); },
                                 manager};
        *known = (1L << 10) - 1;
        return True;
    }

    static Status registered(SmsConn connection, SmPointer manager, char* previousId) {
        char* id = previousId ? previousId : SmsGenerateClientID(connection);
        SmsRegisterClientReply(connection, id);
        // A new program is asked at once for the command that would restart it.
        if (!previousId)
            of(manager).askToSave(connection, SmSaveLocal, false);
        std::free(id);
        return True;
    }

    static void saved(SmsConn connection, SmPointer manager, Bool) {
        of(manager).memberOf(connection)->isSaving = false;
        if (!of(manager).m_isLeaving)
            SmsSaveComplete(connection);
    }

    static void left(SmsConn connection, SmPointer manager, int count, char** reasons) {
        SmFreeReasons(count, reasons);
        IceConn link = SmsGetIceConnection(connection);
        SmsCleanUp(connection);
        of(manager).forget(link);
        IceSetShutdownNegotiation(link, False);
        IceCloseConnection(link);
    }

    std::vector<Member>::iterator memberOf(SmsConn connection) {
        return std::ranges::find(m_members, connection, &Member::connection);
    }

    void askToSave(SmsConn connection, int what, bool isLeaving) {
        memberOf(connection)->isSaving = true;
        SmsSaveYourself(connection, what, isLeaving, SmInteractStyleNone, False);
    }

    void forget(IceConn link) {
        std::erase(m_links, link);
        std::erase_if(m_members, [link](const Member& member) {
            return SmsGetIceConnection(member.connection) == link;
        });
    }

    void waitUntilSaved() {
        while (std::ranges::any_of(m_members, &Member::isSaving) && turn()) {
        }
    }

    void obeyWhatIsRead() {
        for (auto end = m_input.find('\n'); end != std::string::npos; end = m_input.find('\n')) {
            const std::string command = m_input.substr(0, end);
            m_input.erase(0, end + 1);
            waitUntilSaved();
            obey(command);
            waitUntilSaved();
            std::cout << "ok" << std::endl;
        }
    }

    void obey(const std::string& command) {
        if (command == "stay" || command == "leave")
            m_isLeaving = command == "leave";
        for (const Member& member : std::vector(m_members)) {
            if (command == "save" || command == "leave")
                askToSave(member.connection, SmSaveBoth, m_isLeaving);
            else if (command == "stay")
                SmsShutdownCancelled(member.connection);
            else if (command == "die")
                SmsDie(member.connection);
        }
    }

    // Waits for messages and handles them. False at the end of standard input.
    bool turn() {
        std::vector<pollfd> waiting{{STDIN_FILENO, POLLIN, 0}};
        for (int i = 0; i < m_listenerCount; ++i)
            waiting.push_back({IceGetListenConnectionNumber(m_listeners[i]), POLLIN, 0});
        const std::vector<IceConn> links = m_links;
        for (IceConn link : links)
            waiting.push_back({IceConnectionNumber(link), POLLIN, 0});
        if (::poll(waiting.data(), waiting.size(), -1) < 0)
            return false;
        for (int i = 0; i < m_listenerCount; ++i)
            if (waiting[1 + std::size_t(i)].revents)
                accept(m_listeners[i]);
        for (std::size_t i = 0; i < links.size(); ++i)
            if (waiting[1 + std::size_t(m_listenerCount) + i].revents)
                process(links[i]);
        return !waiting[0].revents || read();
    }

    void accept(IceListenObj listener) {
        IceAcceptStatus status = IceAcceptFailure;
        if (IceConn link = IceAcceptConnection(listener, &status))
            m_links.push_back(link);
    }

    void process(IceConn link) {
        if (std::ranges::find(m_links, link) == m_links.end() ||
            IceProcessMessages(link, nullptr, nullptr) != IceProcessMessagesIOError)
            return;
        forget(link);
        IceSetShutdownNegotiation(link, False);
        IceCloseConnection(link);
    }

    bool read() {
        char bytes[256];
        const ssize_t count = ::read(STDIN_FILENO, bytes, sizeof bytes);
        m_input.append(bytes, std::size_t(std::max<ssize_t>(count, 0)));
        return count > 0;
    }

    int m_listenerCount = 0;
    IceListenObj* m_listeners = nullptr;
    std::vector<IceConn> m_links;
    std::vector<Member> m_members;
    std::string m_input;
    bool m_isLeaving = false;
};

} // namespace

int main() {
    Manager manager;
    manager.serve();
    return EXIT_SUCCESS;
}
