#pragma once

#include <QDateTime>
#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace quorvane {

// Checks the signed update feed, daily when automatic checks are on and whenever asked. What
// a newer release leads to depends on how this copy was installed: a package hears of it and
// leaves it to the package manager; a copy in the user's own folders downloads it, verifies
// its signature and length, and puts it in place at the next start.
class Updater : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The updater is made at start-up.")
    Q_PROPERTY(bool automatic READ automatic WRITE setAutomatic NOTIFY automaticChanged)
    // A check may start now: none is running.
    Q_PROPERTY(bool canCheck READ canCheck NOTIFY stateChanged)
    // The last check that reached the feed; invalid before the first.
    Q_PROPERTY(QDateTime lastCheck READ lastCheck NOTIFY stateChanged)
    // "2.0 (200)"
    Q_PROPERTY(QString versionText READ versionText CONSTANT)
    // What the last check found, for the user: "Quorvane is up to date.", "Quorvane 2.1 is
    // available…", or why the check or the download was refused. Empty before a check.
    Q_PROPERTY(QString status READ status NOTIFY stateChanged)
    // The version found newer than this one ("2.1"), empty when none; and its release notes.
    Q_PROPERTY(QString availableVersion READ availableVersion NOTIFY stateChanged)
    Q_PROPERTY(QString notesURL READ notesURL NOTIFY stateChanged)
    // True after a failed check or a refused download.
    Q_PROPERTY(bool failed READ failed NOTIFY stateChanged)

public:
    using QObject::QObject;

    [[nodiscard]] virtual bool automatic() const = 0;
    virtual void setAutomatic(bool on) = 0;
    [[nodiscard]] virtual bool canCheck() const = 0;
    [[nodiscard]] virtual QDateTime lastCheck() const = 0;
    [[nodiscard]] virtual QString versionText() const = 0;
    [[nodiscard]] virtual QString status() const = 0;
    [[nodiscard]] virtual QString availableVersion() const = 0;
    [[nodiscard]] virtual QString notesURL() const = 0;
    [[nodiscard]] virtual bool failed() const = 0;

    Q_INVOKABLE virtual void check() = 0;
    // The release notes of the version found, in the browser.
    Q_INVOKABLE virtual void openNotes() = 0;

Q_SIGNALS:
    void automaticChanged();
    void stateChanged();
};

} // namespace quorvane
