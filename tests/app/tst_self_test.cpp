#include "SelfTest.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace quorvane;

namespace {

const QString window = u"import QtQuick\nWindow { objectName: \"%1\"; visible: %2; width: 120; height: 80\n%3\n}\n"_s;

} // namespace

// The self-test must pass a sound interface and fail on every kind of QML trouble, since CI
// trusts its exit code.
class TestSelfTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void verdict_data()
    {
        QTest::addColumn<QString>("root");
        QTest::addColumn<QString>("other"); // a second file that is only compiled
        QTest::addColumn<int>("exitCode");
        QTest::addColumn<QString>("problem");

        const QString fine = u"import QtQuick\nItem { width: 10 }\n"_s;
        QTest::newRow("sound") << window.arg(u"main"_s, u"true"_s, u"Rectangle { anchors.fill: parent }"_s) << fine
                               << 0 << QString();
        QTest::newRow("another file does not compile")
            << window.arg(u"main"_s, u"true"_s, QString()) << u"import QtQuick\nItem { width: }\n"_s << 1
            << u"other.qml"_s;
        QTest::newRow("another file imports what is not there")
            << window.arg(u"main"_s, u"true"_s, QString()) << u"import Quorvane.Nowhere\nItem {}\n"_s << 1
            << u"Quorvane.Nowhere"_s;
        QTest::newRow("binding error at run time")
            << window.arg(u"main"_s, u"true"_s, u"Rectangle { width: missingThing.width }"_s) << fine << 1
            << u"missingThing"_s;
        QTest::newRow("console warning")
            << window.arg(u"main"_s, u"true"_s, u"Component.onCompleted: console.warn(\"careful\")"_s) << fine << 1
            << u"careful"_s;
        QTest::newRow("no main window") << window.arg(u"popover"_s, u"true"_s, QString()) << fine << 1
                                        << u"no window named"_s;
        QTest::newRow("main window never shown") << window.arg(u"main"_s, u"false"_s, QString()) << fine << 1
                                                 << u"drew nothing"_s;
    }
    void verdict()
    {
        QFETCH(QString, root);
        QFETCH(QString, other);
        QFETCH(int, exitCode);
        QFETCH(QString, problem);

        QTemporaryDir folder;
        QVERIFY(write(folder.filePath(u"Root.qml"_s), root));
        QVERIFY(write(folder.filePath(u"other.qml"_s), other));
        const QStringList files{QUrl::fromLocalFile(folder.filePath(u"other.qml"_s)).toString()};

        QElapsedTimer started;
        started.start();
        QQmlApplicationEngine engine;
        SelfTest test(engine, started);
        QCOMPARE(test.run(QUrl::fromLocalFile(folder.filePath(u"Root.qml"_s)), files, 1500), exitCode);
        if (exitCode == 0) {
            QVERIFY(test.problems().isEmpty());
            QVERIFY(test.firstFrameMs() >= 0);
            QVERIFY(test.firstFrameMs() <= started.elapsed());
        } else {
            QVERIFY2(test.problems().join(u'\n').contains(problem), qPrintable(test.problems().join(u'\n')));
        }
    }

    void findsEveryQmlFileOfAFolder()
    {
        QTemporaryDir folder;
        QVERIFY(QDir(folder.path()).mkpath(u"A/B"_s));
        for (const QString &name : {u"A/One.qml"_s, u"A/B/Two.qml"_s, u"A/notes.txt"_s})
            QVERIFY(write(folder.filePath(name), u"import QtQuick\nItem {}\n"_s));
        QVERIFY(write(folder.filePath(u"A/Style.qml"_s), u"pragma Singleton\nimport QtQuick\nQtObject {}\n"_s));
        const QStringList found = SelfTest::qmlFiles(folder.filePath(u"A"_s));
        QCOMPARE(found.size(), 2);
        QVERIFY(found[0].endsWith(u"A/B/Two.qml"_s));
        QVERIFY(found[1].endsWith(u"A/One.qml"_s));
    }

private:
    static bool write(const QString &path, const QString &text)
    {
        QFile file(path);
        return file.open(QIODevice::WriteOnly) && file.write(text.toUtf8()) == text.toUtf8().size();
    }
};

QTEST_MAIN(TestSelfTest)
#include "tst_self_test.moc"
