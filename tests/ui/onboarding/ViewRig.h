#pragma once

#include <QByteArray>
#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QString>

namespace quorvane {
class SetupServices;
}

namespace quorvane::test {

// A window of QML written by the test, loaded in a fresh engine with the app's modules and
// icons, shown offscreen; items are found by objectName and clicked like a user would.
class ViewRig
{
public:
    // `qml` has a Window at the top. `Setup` in QML is `setup` while this rig lives.
    ViewRig(const QByteArray &qml, SetupServices &setup);
    ~ViewRig();

    // Once per process, before the first rig: the app's style, and Setup for QML (App and
    // Shell are the test's to register).
    static void prepareProcess();

    // False, with the reason in problem(), when the QML didn't load or the window didn't show.
    [[nodiscard]] bool ready();
    [[nodiscard]] const QString &problem() const { return m_problem; }
    [[nodiscard]] QQuickWindow *window() const { return m_window; }
    // The item with that objectName, or null; whether it is on screen; its text.
    [[nodiscard]] QQuickItem *item(const QString &objectName) const;
    [[nodiscard]] bool shows(const QString &objectName) const { return shown(item(objectName)); }
    [[nodiscard]] QString text(const QString &objectName) const;
    // Visible on screen: it and all its parents are visible and not transparent.
    [[nodiscard]] static bool shown(const QQuickItem *item);
    // A left click in the middle of the item.
    void click(QQuickItem *item) const;
    void click(const QString &objectName) const { click(item(objectName)); }

    QQmlApplicationEngine engine;

private:
    QQuickWindow *m_window = nullptr;
    QStringList m_warnings;
    QString m_problem;
};

#define QVERIFY_READY(view) QVERIFY2((view).ready(), qPrintable((view).problem()))

} // namespace quorvane::test
