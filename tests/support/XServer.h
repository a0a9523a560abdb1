#pragma once

#include <QProcess>
#include <QString>
#include <QStringList>

namespace quorvane::test {

// An Xvfb of the test's own, on a display it picks, and xdotool to act on it as a user would.
// Made before the application, which connects to it.
class XServer
{
public:
    XServer();
    ~XServer();
    XServer(const XServer &) = delete;
    XServer &operator=(const XServer &) = delete;

    // Empty when the server runs, else what is missing.
    [[nodiscard]] const QString &missing() const { return m_missing; }
    [[nodiscard]] const QString &display() const { return m_display; }
    // The environment of a program on this display.
    [[nodiscard]] QProcessEnvironment environment() const;
    // Runs a program on this display; true when it succeeded. Its output goes to `output`.
    bool run(const QString &program, const QStringList &arguments, QByteArray *output = nullptr) const;
    bool xdotool(const QStringList &arguments, QByteArray *output = nullptr) const
    {
        return run(QStringLiteral("xdotool"), arguments, output);
    }
    // A key press, such as "ctrl+alt+super+s".
    bool press(const QString &keys) const { return xdotool({QStringLiteral("key"), keys}); }
    // A window with exactly this title is mapped.
    [[nodiscard]] bool shows(const QString &title) const;

private:
    QProcess m_x;
    QString m_display;
    QString m_missing;
};

} // namespace quorvane::test
