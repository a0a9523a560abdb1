#pragma once

#include "FixtureApp.h"
#include "Scene.h"

#include <QImage>
#include <QPointer>
#include <QQmlApplicationEngine>
#include <QQuickWindow>
#include <QStringList>

#include <memory>

namespace quorvane::test {

// The whole app on the fixture, as the shell builds it, for drawing one scene: the engine,
// the shell's windows, and what went wrong on the way.
class Stage
{
public:
    explicit Stage(const Scene &scene);
    ~Stage();

    // Loads the shell, opens the scene's window, waits for it to draw, prepares and settles.
    // False (see problems()) when any step failed or QML complained.
    bool show();
    [[nodiscard]] QImage grab();

    [[nodiscard]] FixtureApp &app() { return *m_app; }
    [[nodiscard]] QQmlApplicationEngine &engine() { return *m_engine; }
    // The open window with that id ("main", "onboarding", ...), or null.
    [[nodiscard]] QQuickWindow *window(const QString &id) const;
    [[nodiscard]] QQuickWindow *window() const { return window(m_scene.window); }
    // The first object with that name in the scene's window, or null.
    [[nodiscard]] QObject *find(const QString &objectName) const;
    // Sets a property of a named object; a problem when either is missing.
    void set(const QString &objectName, const char *property, const QVariant &value);
    // Lets timers, bindings and the network fixture run for a while.
    static void wait(int ms);
    void problem(const QString &text) { m_problems.append(text); }
    [[nodiscard]] const QStringList &problems() const { return m_problems; }

private:
    bool waitForFrame(QQuickWindow *window);

    Scene m_scene;
    QString m_translation; // installed before the fixture makes its first text
    std::unique_ptr<FixtureApp> m_app;
    std::unique_ptr<QQmlApplicationEngine> m_engine;
    QPointer<QQuickWindow> m_popover; // the tray popover, for its scenes
    QStringList m_problems;
};

// A scene of the main window on one section: `before` runs first (a change to the server's
// data, say), then the section is shown and `after` runs on it.
[[nodiscard]] Scene sectionScene(const QString &name, AppSection section, std::function<void(Stage &)> after = {},
                                 std::function<void(Stage &)> before = {});

} // namespace quorvane::test
