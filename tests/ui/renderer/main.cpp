// quorvane-screens: draws every scene of the scene table into PNGs, for people to look at.
//
//   quorvane-screens OUTPUT_FOLDER [NAME_PART ...]   only scenes whose name holds a part
//   quorvane-screens --list
#include "SceneTable.h"
#include "Stage.h"

#include "QuorvaneQmlModules.h"

#include <QApplication>
#include <QDir>
#include <QLocale>
#include <QQuickStyle>

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

bool render(const Scene &scene, const QDir &folder)
{
    Stage stage(scene);
    current = &stage;
    const bool shown = stage.show();
    const QString path = folder.filePath(scene.name + u".png"_s);
    const QImage image = shown ? stage.grab() : QImage();
    const bool saved = !image.isNull() && image.save(path);
    current = nullptr;
    if (saved && stage.problems().isEmpty()) {
        std::printf("%s\n", qPrintable(path));
        return true;
    }
    std::fprintf(stderr, "%s: failed\n", qPrintable(scene.name));
    for (const QString &problem : stage.problems())
        std::fprintf(stderr, "  %s\n", qPrintable(problem));
    return false;
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
    if (arguments.isEmpty()) {
        std::fprintf(stderr, "usage: quorvane-screens OUTPUT_FOLDER [NAME_PART ...] | --list\n");
        return 2;
    }
    const QDir folder(arguments.takeFirst());
    if (!folder.mkpath(u"."_s))
        return 1;
    int failed = 0;
    int drawn = 0;
    for (const Scene &scene : scenes) {
        if (!wanted(scene, arguments))
            continue;
        render(scene, folder) ? ++drawn : ++failed;
    }
    std::fprintf(stderr, "%d drawn, %d failed\n", drawn, failed);
    return failed == 0 && drawn > 0 ? 0 : 1;
}
