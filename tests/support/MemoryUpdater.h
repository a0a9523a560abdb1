#pragma once

#include "updates/Updater.h"

#include <QUrl>

namespace quorvane::test {

// An updater that reaches no feed: what a check finds is set by the test, and a check only
// counts. Fixtures must not reach the network.
class MemoryUpdater final : public Updater
{
public:
    using Updater::Updater;

    [[nodiscard]] bool automatic() const override { return m_automatic; }
    void setAutomatic(bool on) override
    {
        if (on == m_automatic)
            return;
        m_automatic = on;
        Q_EMIT automaticChanged();
    }
    [[nodiscard]] bool canCheck() const override { return m_canCheck; }
    [[nodiscard]] QDateTime lastCheck() const override { return m_lastCheck; }
    [[nodiscard]] QString versionText() const override { return QStringLiteral("2.0 (200)"); }
    [[nodiscard]] QString status() const override { return m_status; }
    [[nodiscard]] QString availableVersion() const override { return m_available; }
    [[nodiscard]] QString notesURL() const override { return m_notes; }
    [[nodiscard]] bool failed() const override { return m_failed; }

    void check() override { ++checks; }
    void openNotes() override { ++notesOpened; }

    // What the last check found, as a real one would report it.
    void found(const QDateTime &when, const QString &status, const QString &available = {}, const QString &notes = {},
               bool failed = false, bool canCheck = true)
    {
        m_lastCheck = when;
        m_status = status;
        m_available = available;
        m_notes = notes;
        m_failed = failed;
        m_canCheck = canCheck;
        Q_EMIT stateChanged();
    }

    int checks = 0;
    int notesOpened = 0;

private:
    bool m_automatic = true;
    bool m_canCheck = true;
    QDateTime m_lastCheck;
    QString m_status;
    QString m_available;
    QString m_notes;
    bool m_failed = false;
};

} // namespace quorvane::test
