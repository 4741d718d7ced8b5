// SPDX-License-Identifier: MIT
#include "tests/desktop/harness/XClient.h"
#include "tests/Places.h"

namespace {

QByteArray encoded(const QByteArray& bytes) {
    // One character first, so that an empty text is a word too.
    return '=' + bytes.toPercentEncoding();
}

} // namespace

XClient::XClient(const Desk& desk)
    : m_desk(desk)
    , m_program(QStringLiteral(TICKLOG_BINARY_DIR "/x-client"), {}, desk.environment(),
                Program::Output::Read) {}

QByteArray XClient::tell(const QByteArray& command) {
    m_program.write(command + '\n');
    const auto answer = m_program.readLine();
    if (!answer || !answer->startsWith("ok"))
        qFatal("the X client answered \"%s\" to \"%s\"", answer ? answer->constData() : "",
               command.constData());
    return answer->mid(3);
}

xcb_window_t XClient::open(const XWindowLook& look) {
    const xcb_window_t window = tell("create").toUInt();
    if (!look.title.isEmpty())
        setText(window, "_NET_WM_NAME", "UTF8_STRING", look.title);
    if (!look.plainTitle.isEmpty())
        setText(window, "WM_NAME", "STRING", look.plainTitle);
    if (!look.className.isEmpty())
        setText(window, "WM_CLASS", "STRING", look.instanceName + '\0' + look.className + '\0');
    if (!look.type.isEmpty())
        tell("type " + QByteArray::number(window) + " _NET_WM_WINDOW_TYPE_" + look.type);
    if (look.hasProcessIdentifier)
        setNumbers(window, "_NET_WM_PID", "CARDINAL", {quint32(processIdentifier())});
    if (!look.isMapped)
        return window;
    tell("map " + QByteArray::number(window));
    if (m_desk.hasWindowManager())
        waitFor([&] { return m_desk.probe().isInWindowList(window); });
    return window;
}

void XClient::setTitle(xcb_window_t window, const QByteArray& utf8) {
    setText(window, "WM_NAME", "STRING", "plain");
    setText(window, "_NET_WM_NAME", "UTF8_STRING", utf8);
}

void XClient::setText(xcb_window_t window, const QByteArray& property, const QByteArray& type,
                      const QByteArray& bytes) {
    tell("text " + QByteArray::number(window) + ' ' + property + ' ' + type + ' ' + encoded(bytes));
}

void XClient::setNumbers(xcb_window_t window, const QByteArray& property, const QByteArray& type,
                         const std::vector<quint32>& values) {
    QByteArray command = "numbers " + QByteArray::number(window) + ' ' + property + ' ' + type;
    for (const quint32 value : values)
        command += ' ' + QByteArray::number(value);
    tell(command);
}

void XClient::removeProperty(xcb_window_t window, const QByteArray& property) {
    tell("remove " + QByteArray::number(window) + ' ' + property);
}

void XClient::activate(xcb_window_t window) {
    tell("activate " + QByteArray::number(window));
}

void XClient::minimise(xcb_window_t window) {
    tell("minimise " + QByteArray::number(window));
}

void XClient::focus(xcb_window_t window) {
    tell("focus " + QByteArray::number(window));
}

void XClient::raise(xcb_window_t window) {
    tell("raise " + QByteArray::number(window));
}

void XClient::destroy(xcb_window_t window) {
    tell("destroy " + QByteArray::number(window));
}

void XClient::map(xcb_window_t window) {
    tell("map " + QByteArray::number(window));
}
