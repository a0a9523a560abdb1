#include "linux/ProcessStats.h"
#include "shell/SelfTest.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QQmlEngine>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace quorvane;

namespace {

QString window(const QString &inside, const QString &name = u"main"_s, bool visible = true)
{
    return u"import QtQuick\nWindow { objectName: \"%1\"; visible: %2; width: 120; height: 80\n%3\n}\n"_s.arg(
        name, visible ? u"true"_s : u"false"_s, inside);
}

bool write(const QString &path, const QString &text)
{
    QFile file(path);
    return QDir().mkpath(QFileInfo(path).path()) && file.open(QIODevice::WriteOnly)
           && file.write(text.toUtf8()) == text.toUtf8().size();
}

} // namespace

// The self-test must pass a sound interface and fail on every kind of QML trouble, since CI
// trusts its exit code. The other files are found as the app finds its own: every QML file
// of a folder but singletons, which can't be made alone.
class TestSelfTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void verdict_data()
    {
        QTest::addColumn<QString>("root");
        QTest::addColumn<QString>("other");   // a file below the folder, only compiled
        QTest::addColumn<QString>("view");    // a module the view table would name
        QTest::addColumn<QString>("problem"); // empty: the test passes

        const QString fine = u"import QtQuick\nItem { width: 10 }\n"_s, broken = u"import QtQuick\nItem { width: }\n"_s;
        const QString quick = u"QtQuick"_s;
        QTest::newRow("sound") << window(u"Rectangle { anchors.fill: parent }"_s) << fine << quick << QString();
        QTest::newRow("the root does not compile") << broken << fine << quick << u"Root.qml"_s;
        QTest::newRow("another file does not compile") << window({}) << broken << quick << u"other.qml"_s;
        QTest::newRow("binding error at run time")
            << window(u"Rectangle { width: gone.width }"_s) << fine << quick << u"gone"_s;
        QTest::newRow("console warning") << window(u"Component.onCompleted: console.warn(\"careful\")"_s) << fine
                                         << quick << u"careful"_s;
        QTest::newRow("no main window") << window({}, u"popover"_s) << fine << quick << u"no window named"_s;
        QTest::newRow("main window never shown") << window({}, u"main"_s, false) << fine << quick << u"drew nothing"_s;
        QTest::newRow("a view's module is missing") << window({}) << fine << u"Quorvane.Gone"_s << u"Quorvane.Gone"_s;
    }
    void verdict()
    {
        QFETCH(QString, root);
        QFETCH(QString, other);
        QFETCH(QString, view);
        QFETCH(QString, problem);

        QTemporaryDir folder;
        QVERIFY(write(folder.filePath(u"Root.qml"_s), root));
        QVERIFY(write(folder.filePath(u"ui/parts/other.qml"_s), other));
        QVERIFY(write(folder.filePath(u"ui/notes.txt"_s), u"not QML"_s));
        QVERIFY(write(folder.filePath(u"ui/Style.qml"_s), u"pragma Singleton\nimport QtQuick\nQtObject {}\n"_s));
        const QStringList files = SelfTest::qmlFiles(folder.filePath(u"ui"_s));
        QCOMPARE(files, QStringList{QUrl::fromLocalFile(folder.filePath(u"ui/parts/other.qml"_s)).toString()});

        QElapsedTimer started;
        started.start();
        QQmlEngine engine;
        SelfTest test(engine, started, ProcessStats::ownCpuUs());
        QCOMPARE(test.run(QUrl::fromLocalFile(folder.filePath(u"Root.qml"_s)), {QmlType{view, u"Item"_s}},
                          folder.filePath(u"ui"_s), 1500),
                 problem.isEmpty() ? 0 : 1);
        const QString problems = test.problems().join(u'\n');
        if (problem.isEmpty())
            QVERIFY2(problems.isEmpty() && test.firstFrameMs() >= 0 && test.firstFrameMs() <= started.elapsed(),
                     qPrintable(problems));
        else
            QVERIFY2(problems.contains(problem), qPrintable(problems));
    }
};

QTEST_MAIN(TestSelfTest)
#include "tst_self_test.moc"
