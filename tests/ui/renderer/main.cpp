// quorvane-screens: draws every scene of the scene table into PNGs, for people to look at.
//
//   quorvane-screens [--dark] OUTPUT_FOLDER [NAME_PART ...]   only scenes whose name holds a part
//   quorvane-screens --accessibility [NAME_PART ...]
//   quorvane-screens --list
//
// --dark draws in the dark palette, into "<scene>-dark.png". --accessibility draws nothing and
// instead fails each scene with a control that the keyboard reaches but that has no name or
// role for a screen reader; it runs under with-screen-reader, where Qt's bridge to one is on.
#include "AccessibleTree.h"
#include "SceneTable.h"
#include "Stage.h"

#include "components/Appearance.h"

#include "QuorvaneQmlModules.h"

#include <QApplication>
#include <QDir>
#include <QLocale>
#include <QQuickStyle>
#include <QQuickWindow>

#include <cstdio>

using namespace Qt::StringLiterals;
using namespace quorvane::test;

namespace {

Stage *current = nullptr;
QtMessageHandler previous = nullptr;

// console.warn and friends count against the scene being drawn.
void onMessage(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    const QLatin1StringView category(context.category ? context.category : "");
    if (current && type != QtDebugMsg && type != QtInfoMsg && (category == "js"_L1 || category == "qml"_L1))
        current->problem(text);
    previous(type, context, text);
}

bool wanted(const Scene &scene, const QStringList &parts)
{
    if (parts.isEmpty())
        return true;
    for (const QString &part : parts) {
        if (scene.name.contains(part))
            return true;
    }
    return false;
}

bool report(const Scene &scene, const QStringList &problems, const QString &done)
{
    if (problems.isEmpty()) {
        std::printf("%s\n", qPrintable(done));
        return true;
    }
    std::fprintf(stderr, "%s: failed\n", qPrintable(scene.name));
    for (const QString &problem : problems)
        std::fprintf(stderr, "  %s\n", qPrintable(problem));
    return false;
}

bool render(const Scene &scene, const QDir &folder, const QString &suffix)
{
    Stage stage(scene);
    current = &stage;
    const bool shown = stage.show();
    const QString path = folder.filePath(scene.name + suffix + u".png"_s);
    const QImage image = shown ? stage.grab() : QImage();
    if (shown && (image.isNull() || !image.save(path)))
        stage.problem(u"could not save %1"_s.arg(path));
    current = nullptr;
    return report(scene, stage.problems(), path);
}

// Every open window of the scene, as a screen reader would walk it.
bool checkAccessibility(const Scene &scene)
{
    Stage stage(scene);
    current = &stage;
    if (!AccessibleTree::readerActive())
        stage.problem(u"no screen reader bridge: run this under tests/ui/renderer/with-screen-reader"_s);
    else if (stage.show()) {
        for (QWindow *window : QGuiApplication::topLevelWindows()) {
            if (window->isVisible() && qobject_cast<QQuickWindow *>(window)) {
                for (const QString &control : AccessibleTree::unnamedControls(window))
                    stage.problem(control);
            }
        }
    }
    current = nullptr;
    return report(scene, stage.problems(), scene.name + u": every control named"_s);
}

} // namespace

int main(int argc, char *argv[])
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("TZ", "America/New_York"); // the fixture's zone, for anything that asks the system
    QApplication app(argc, argv);      // Qt Charts needs the widgets application
    QApplication::setQuitOnLastWindowClosed(false);
    QQuickStyle::setStyle(u"Fusion"_s);
    QLocale::setDefault(QLocale(u"en_US"_s));
    FixtureApp::registerQmlSingletons();
    previous = qInstallMessageHandler(onMessage);

    QStringList arguments = QApplication::arguments().mid(1);
    const QList<Scene> scenes = SceneTable::all();
    if (arguments.value(0) == "--list"_L1) {
        for (const Scene &scene : scenes)
            std::printf("%s\n", qPrintable(scene.name));
        return 0;
    }
    const bool accessibility = arguments.removeAll(u"--accessibility"_s) > 0;
    const bool dark = arguments.removeAll(u"--dark"_s) > 0;
    if (!accessibility && arguments.isEmpty()) {
        std::fprintf(stderr, "usage: quorvane-screens [--dark] OUTPUT_FOLDER [NAME_PART ...] | --accessibility "
                             "[NAME_PART ...] | --list\n");
        return 2;
    }
    quorvane::Appearance appearance;
    if (dark)
        appearance.apply(quorvane::ColorScheme::dark);
    const QDir folder(accessibility ? QString() : arguments.takeFirst());
    if (!accessibility && !folder.mkpath(u"."_s))
        return 1;
    int failed = 0;
    int drawn = 0;
    for (const Scene &scene : scenes) {
        if (!wanted(scene, arguments))
            continue;
        const bool ok =
            accessibility ? checkAccessibility(scene) : render(scene, folder, dark ? u"-dark"_s : QString());
        ok ? ++drawn : ++failed;
    }
    std::fprintf(stderr, "%d %s, %d failed\n", drawn, accessibility ? "checked" : "drawn", failed);
    return failed == 0 && drawn > 0 ? 0 : 1;
}
