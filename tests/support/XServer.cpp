#include "support/XServer.h"

#include <QRegularExpression>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace quorvane::test {

XServer::XServer()
{
    for (const char *tool : {"Xvfb", "xdotool"}) {
        if (QStandardPaths::findExecutable(QString::fromLatin1(tool)).isEmpty()) {
            m_missing = QString::fromLatin1(tool) + u" is not installed (see scripts/debian-packages.txt)"_s;
            return;
        }
    }
    // -displayfd 1: the server picks a free display and writes its number once ready.
    // -noreset: by default the server resets whenever its last client leaves, and refuses
    // whoever connects meanwhile; a test's clients come and go all the time.
    m_x.start(u"Xvfb"_s, {u"-displayfd"_s, u"1"_s, u"-noreset"_s, u"-screen"_s, u"0"_s, u"1280x800x24"_s,
                          u"-nolisten"_s, u"tcp"_s});
    if (!m_x.waitForStarted() || !m_x.waitForReadyRead(10'000))
        m_missing = u"Xvfb did not start"_s;
    else
        m_display = u":"_s + QString::fromLatin1(m_x.readAllStandardOutput().trimmed());
}

XServer::~XServer()
{
    m_x.terminate();
    m_x.waitForFinished(3000);
}

QProcessEnvironment XServer::environment() const
{
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert(u"DISPLAY"_s, m_display);
    env.insert(u"QT_QPA_PLATFORM"_s, u"xcb"_s);
    return env;
}

bool XServer::run(const QString &program, const QStringList &arguments, QByteArray *output) const
{
    QProcess tool;
    tool.setProcessEnvironment(environment());
    tool.start(program, arguments);
    const bool done = tool.waitForFinished(5000) && tool.exitCode() == 0;
    if (output)
        *output = tool.readAllStandardOutput();
    return done;
}

bool XServer::shows(const QString &title) const
{
    // A window that closes while xdotool walks the tree makes the walk fail, whatever it has
    // found; a found window is one it printed, and a failed walk is tried again.
    const QStringList search{u"search"_s, u"--onlyvisible"_s, u"--name"_s,
                             u"^"_s + QRegularExpression::escape(title) + u"$"_s};
    for (int attempt = 0; attempt < 3; ++attempt) {
        QByteArray found;
        const bool clean = xdotool(search, &found);
        if (!found.trimmed().isEmpty())
            return true;
        if (clean)
            return false;
    }
    return false;
}

} // namespace quorvane::test
