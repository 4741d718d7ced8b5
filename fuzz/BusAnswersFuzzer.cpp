// SPDX-License-Identifier: MIT
// LINKS fakes gnome atspi linux trusted
// What programs and services answer, read by those who ask, and what launchers ask. A connection from program to program takes the place of a bus, so
// that each answer is written and read by the real toolkit, which ends the process over what is read as something else.
#include "helpers/TKAXTrusted/PolkitAuthority.h"
#include "platform/atspi/AtspiApplication.h"
#include "platform/bus/BusMap.h"
#include "platform/foundation/text/CleanText.h"
#include "platform/gnome/GnomeSight.h"
#include "platform/linux/ActivationService.h"
#include "platform/linux/LogindIdleTime.h"
#include "tests/fakes/ManualRunLoop.h"
#include "tests/fakes/RecordingLog.h"

#include <QCoreApplication>
#include <QDBusMetaType>
#include <QDBusPendingCall>
#include <QDBusServer>
#include <QDBusVirtualObject>
#include <QEvent>

#include <cstdlib>
#include <optional>

// An element of the accessibility services' lists: whose it is and where.
struct ObjectOfProgram {
    QString program;
    QDBusObjectPath path;
};

// A window as GNOME's shell extension reports it.
struct ToldWindow {
    uint number = 0;
    int process = 0;
    QString title, application, windowClass;
    int layer = 0;
};

// Polkit's verdict.
struct ToldVerdict {
    bool isYes = false, isChallenge = false;
    QMap<QString, QString> details;
};

Q_DECLARE_METATYPE(ObjectOfProgram)
Q_DECLARE_METATYPE(ToldWindow)
Q_DECLARE_METATYPE(ToldVerdict)

static QDBusArgument& operator<<(QDBusArgument& to, const ObjectOfProgram& value) {
    to.beginStructure();
    to << value.program << value.path;
    to.endStructure();
    return to;
}

static const QDBusArgument& operator>>(const QDBusArgument& from, ObjectOfProgram&) {
    return from;
}

static QDBusArgument& operator<<(QDBusArgument& to, const ToldWindow& value) {
    to.beginStructure();
    to << value.number << value.process << value.title << value.application << value.windowClass
       << value.layer;
    to.endStructure();
    return to;
}

static const QDBusArgument& operator>>(const QDBusArgument& from, ToldWindow&) {
    return from;
}

static QDBusArgument& operator<<(QDBusArgument& to, const ToldVerdict& value) {
    to.beginStructure();
    to << value.isYes << value.isChallenge << value.details;
    to.endStructure();
    return to;
}

static const QDBusArgument& operator>>(const QDBusArgument& from, ToldVerdict&) {
    return from;
}

namespace {

const QString kProgram = QStringLiteral(":1.7");

// Takes the bytes as choices; when they are used up, all choices are zero.
class Choices {
public:
    void refill(const unsigned char* data, std::size_t size) {
        m_bytes = QByteArray(reinterpret_cast<const char*>(data), qsizetype(size));
        m_at = 0;
    }

    unsigned next() { return m_at < m_bytes.size() ? static_cast<unsigned char>(m_bytes[m_at++]) : 0U; }

    uint number() { return next() << 24 | next() << 16 | next() << 8 | next(); }

    quint64 longNumber() { return quint64(number()) << 32 | number(); }

    bool isYes() { return next() & 1U; }

    // Any text; what is no valid text cannot pass through the toolkit.
    QString text() {
        const qsizetype length = std::min<qsizetype>(next(), m_bytes.size() - m_at);
        m_at += length;
        return QString::fromUtf8(m_bytes.mid(m_at - length, length)).remove(QChar(0));
    }

    template<class Element, class Make>
    QList<Element> list(Make make) {
        QList<Element> made;
        for (unsigned count = next() % 8; count > 0; --count)
            made << make();
        return made;
    }

private:
    QByteArray m_bytes;
    qsizetype m_at = 0;
};

// One argument of an answer, of any kind, whether the readers expect it or not.
QVariant argument(Choices& choices) {
    switch (choices.next() % 16) {
    case 0:
        return choices.number();
    case 1:
        return int(choices.number());
    case 2:
        return choices.isYes();
    case 3:
        return choices.text();
    case 4:
        return QVariant::fromValue(
            QDBusVariant(choices.isYes() ? QVariant(choices.text()) : choices.number()));
    case 5:
        return QVariantMap{{choices.text(), choices.number()},
                           {QStringLiteral("UnixUserID"), choices.text()}};
    case 6:
        return QVariant::fromValue(choices.list<ObjectOfProgram>([&] {
            return ObjectOfProgram{choices.isYes() ? kProgram : choices.text(),
                                   QDBusObjectPath(QStringLiteral("/o%1").arg(choices.next()))};
        }));
    case 7:
        return QVariant::fromValue(choices.list<ToldWindow>([&] {
            return ToldWindow{choices.number(), int(choices.number()), choices.text(),
                              choices.text(),   choices.text(),        int(choices.next())};
        }));
    case 8:
        return QVariant::fromValue(ToldVerdict{choices.isYes(), choices.isYes(), {{choices.text(), {}}}});
    case 9:
        return QVariant::fromValue(choices.list<uint>([&] { return choices.number(); }));
    case 10:
        return QVariant::fromValue(QDBusVariant(QVariantMap{{choices.text(), choices.text()}}));
    case 11:
        return QVariantMap{{QStringLiteral("IdleHint"), choices.isYes()},
                           {QStringLiteral("LockedHint"), choices.text()},
                           {QStringLiteral("Class"), choices.text()},
                           {QStringLiteral("IdleSinceHintMonotonic"), choices.longNumber()}};
    case 12:
        return QVariant::fromValue(QDBusObjectPath(QStringLiteral("/o%1").arg(choices.next())));
    case 13:
        return QVariant::fromValue(QDBusVariant(
            QVariant::fromValue(ObjectOfProgram{choices.text(), QDBusObjectPath(QStringLiteral("/o"))})));
    case 14:
        return choices.list<QString>(
            [&]() -> QString { return QStringLiteral("file:///") + choices.text(); });
    default:
        return QVariant::fromValue(QDBusVariant(QVariant::fromValue(ToldVerdict())));
    }
}

QVariantList answerOf(Choices& choices) {
    // Random arguments alone would never look like a report of the shell's extension.
    QVariantList arguments;
    if (choices.next() % 4 == 0)
        arguments = {choices.number(), choices.number(), choices.number()};
    for (unsigned count = choices.next() % 4; count > 0; --count)
        arguments << argument(choices);
    return arguments;
}

// Answers every question at random.
class Answerer : public QDBusVirtualObject {
public:
    QString introspect(const QString&) const override { return {}; }

    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override {
        const bool isPing = message.member() == QLatin1String("Ping");
        isLastVerdictYes = false;
        if (isPing) {
            connection.send(message.createReply());
            return true;
        }
        if (message.member() == QLatin1String("GetNameOwner")) {
            connection.send(message.createReply(kProgram));
            return true;
        }
        if (choices.next() % 16 == 15) {
            connection.send(message.createErrorReply(QStringLiteral("org.example.Odd"), choices.text()));
            return true;
        }
        const QVariantList arguments = answerOf(choices);
        isLastVerdictYes = arguments.size() == 1 &&
                           arguments.first().metaType() == QMetaType::fromType<ToldVerdict>() &&
                           arguments.first().value<ToldVerdict>().isYes;
        connection.send(message.createReply(arguments));
        return true;
    }

    Choices choices;
    bool isLastVerdictYes = false;
};

struct Talk {
    Talk() {
        qDBusRegisterMetaType<ObjectOfProgram>();
        qDBusRegisterMetaType<QList<ObjectOfProgram>>();
        qDBusRegisterMetaType<ToldWindow>();
        qDBusRegisterMetaType<QList<ToldWindow>>();
        qDBusRegisterMetaType<ToldVerdict>();
        QObject::connect(
            &server, &QDBusServer::newConnection, &server, [this](const QDBusConnection& coming) {
                other.emplace(coming);
                other->registerVirtualObject(QStringLiteral("/"), &answerer, QDBusConnection::SubPath);
            });
        while (!other)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 100);
    }

    static Talk& shared() {
        static int count = 1;
        static char name[] = "fuzzer";
        static char* arguments[] = {name, nullptr};
        static QCoreApplication application(count, arguments);
        static Talk talk;
        return talk;
    }

    // Answers come in order: when this one is there, so are all before it.
    QDBusMessage ask(const char* member) {
        std::optional<QDBusMessage> answer;
        bus.call(QDBusMessage::createMethodCall(kProgram, QStringLiteral("/"),
                                                QStringLiteral("org.example.Any"), QLatin1String(member)),
                 &receiver, [&](const QDBusMessage& reply) { answer = reply; });
        while (!answer)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 100);
        return *answer;
    }

    HandClock clock;
    ManualRunLoop loop{clock};
    RecordingLog log;
    QObject receiver;
    Answerer answerer;
    QDBusServer server{QStringLiteral("unix:tmpdir=/tmp")};
    std::optional<QDBusConnection> other;
    Bus bus{[this](const QString& name) { return QDBusConnection::connectToPeer(server.address(), name); },
            loop, log};
};

void readAsPolkits(Talk& talk) {
    PolkitAuthority authority(talk.bus);
    std::optional<PolkitAuthority::Verdict> verdict;
    authority.check({kProgram, QStringLiteral("a"), QStringLiteral("/bin/true"), true},
                    [&](PolkitAuthority::Verdict told) { verdict = told; });
    while (!verdict)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 100);
    if ((*verdict == PolkitAuthority::Verdict::Yes) != talk.answerer.isLastVerdictYes)
        std::abort();
}

void readAsGnomes(const QDBusMessage& answer) {
    (void)GnomeSight::versionsOf(answer);
    if (const auto sight = GnomeSight::read(answer))
        for (const auto& window : sight->windows)
            if (window.title != cleanText(window.title))
                std::abort();
    (void)mapIn(answer, "a{sv}", 0);
    (void)mapIn(answer, "sa{sv}as", 1);
}

void readAsPrograms(Talk& talk) {
    AtspiApplication application(talk.bus, talk.loop, kProgram, QStringLiteral("/root"),
                                 [](std::int64_t, AtspiApplication::Change) {});
    // Asks for its process, its windows, and the facts of each.
    for (int depth = 0; depth < 3; ++depth)
        (void)talk.ask("Ping");
    if (application.title() != cleanText(application.title()))
        std::abort();
}

// A session that is found by its name, or else by our process, or else by the user.
void readAsLogind(Talk& talk) {
    OwnSession session(talk.bus, talk.log, QStringLiteral("1"));
    LogindIdleTime idleTime(session, talk.clock);
    for (int step = 0; step < 8; ++step) {
        (void)talk.ask("Ping");
        if (idleTime.read().idle < std::chrono::nanoseconds::zero())
            std::abort();
    }
}

void askAsLauncher(Talk& talk) {
    const Admission admission;
    ActivationService service(talk.bus, admission, talk.loop, talk.log);
    service.listen([](const QStringList& files, const Admission::Ticket& ticket) {
        for (const QString& file : files)
            if (!file.startsWith(u'/'))
                std::abort();
        if (!ticket || files.size() > ActivationService::kMostFiles)
            std::abort();
    });
    Choices& choices = talk.answerer.choices;
    auto request = QDBusMessage::createMethodCall(
        QString(), kTicklogPath, choices.isYes() ? QStringLiteral("org.freedesktop.Application") : QString(),
        choices.isYes() ? QStringLiteral("Open") : QStringLiteral("Activate"));
    request.setArguments({argument(choices), argument(choices)});
    const QDBusPendingCall answer = talk.other->asyncCall(request);
    while (!answer.isFinished())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 100);
    talk.loop.runPending();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    Talk& talk = Talk::shared();
    talk.answerer.choices.refill(data, size);
    readAsPolkits(talk);
    readAsGnomes(talk.ask("Any"));
    readAsPrograms(talk);
    readAsLogind(talk);
    askAsLauncher(talk);
    talk.log.lines.clear();
    // Nothing else does this, because no event loop runs.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return 0;
}
