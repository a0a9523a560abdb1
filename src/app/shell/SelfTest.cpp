#include "shell/SelfTest.h"

#include "linux/ProcessStats.h"
#include "shell/QmlPreload.h"

#include <QDirIterator>
#include <QEventLoop>
#include <QFile>
#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickWindow>
#include <QTimer>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace quorvane {

namespace {
constexpr int graceMs = 300;
SelfTest *active = nullptr;
QtMessageHandler previousHandler = nullptr;

// Messages that come from QML, as opposed to the platform's own chatter.
bool fromQml(const QMessageLogContext &context)
{
    const QLatin1StringView category(context.category ? context.category : "");
    const QLatin1StringView file(context.file ? context.file : "");
    return category == "qml"_L1 || category == "js"_L1 || category.startsWith("qt.qml"_L1) || file.startsWith("qrc:"_L1)
           || file.startsWith("file:"_L1);
}
} // namespace

SelfTest::SelfTest(QQmlEngine &engine, QElapsedTimer started, qint64 cpuAtStartUs, QObject *parent)
    : QObject(parent)
    , m_engine(engine)
    , m_started(started)
    , m_cpuAtStartUs(cpuAtStartUs)
{
    active = this;
    previousHandler = qInstallMessageHandler(&SelfTest::onMessage);
    connect(&m_engine, &QQmlEngine::warnings, this, [this](const QList<QQmlError> &warnings) {
        for (const QQmlError &w : warnings)
            m_problems.append(w.toString());
    });
}

SelfTest::~SelfTest()
{
    qInstallMessageHandler(previousHandler);
    active = nullptr;
}

void SelfTest::onMessage(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    if (active && type != QtDebugMsg && type != QtInfoMsg && fromQml(context))
        active->m_problems.append(text);
    if (previousHandler)
        previousHandler(type, context, text);
}

QStringList SelfTest::qmlFiles(const QString &folder)
{
    QStringList out;
    QDirIterator it(folder, {u"*.qml"_s}, QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString path = it.next();
        // A singleton can't be made by itself; it is compiled where it is used.
        QFile file(path);
        if (file.open(QIODevice::ReadOnly) && file.readAll().contains("pragma Singleton"))
            continue;
        out.append(path.startsWith(u':') ? u"qrc"_s + path : QUrl::fromLocalFile(path).toString());
    }
    out.sort();
    return out;
}

int SelfTest::run(const QUrl &root, const QList<QmlType> &views, const QString &folder, int timeoutMs)
{
    // The window first, as a user's start would go; every other file is listed and compiled
    // after it, so the first frame's time is the start's own.
    m_root = QmlPreload::create(m_engine, root);
    if (!m_root)
        m_problems.append(u"%1 did not load"_s.arg(root.toString()));
    else
        waitForFirstFrame(timeoutMs);
    const std::optional<qint64> resident = ProcessStats::residentKiB();
    if (m_open && m_main)
        m_openingMs = timeOpening(m_main, timeoutMs);
    const QStringList files = qmlFiles(folder);
    compile(files);
    compileViews(views);

    for (const QString &problem : std::as_const(m_problems))
        std::fprintf(stderr, "self-test: %s\n", qPrintable(problem));
    if (!m_problems.isEmpty())
        return 1;
    std::printf("self-test: %d QML files compiled; first frame after %lld ms; resident %lld KiB; processor %lld ms",
                int(files.size()), static_cast<long long>(m_firstFrameMs),
                static_cast<long long>(resident.value_or(-1)),
                static_cast<long long>((m_firstFrameCpuUs - m_cpuAtStartUs) / 1000));
    if (m_open)
        std::printf("; section opened in %lld ms", static_cast<long long>(m_openingMs));
    std::printf("\n");
    std::fflush(stdout);
    return 0;
}

void SelfTest::compile(const QStringList &files)
{
    for (const QString &file : files) {
        QQmlComponent component(&m_engine, QUrl(file), QQmlComponent::PreferSynchronous);
        for (const QQmlError &error : component.errors())
            m_problems.append(error.toString());
        if (component.status() == QQmlComponent::Null)
            m_problems.append(u"%1 is empty"_s.arg(file));
    }
}

// Every view the table names must exist in the module it names: a typo or a module left out
// of the build fails here rather than showing a placeholder.
void SelfTest::compileViews(const QList<QmlType> &views)
{
    for (const QmlType &type : views) {
        QQmlComponent component(&m_engine);
        component.setData(type.document(), QUrl(u"qrc:/quorvane/self-test/%1.qml"_s.arg(type.name)));
        for (const QQmlError &error : component.errors())
            m_problems.append(u"%1 %2: %3"_s.arg(type.module, type.name, error.toString()));
    }
}

void SelfTest::waitForFirstFrame(int timeoutMs)
{
    QQuickWindow *main = nullptr;
    for (QWindow *window : QGuiApplication::topLevelWindows()) {
        if (window->objectName() == "main"_L1)
            main = qobject_cast<QQuickWindow *>(window);
    }
    if (!main) {
        m_problems.append(u"no window named \"main\""_s);
        return;
    }
    m_main = main;
    QEventLoop loop;
    connect(main, &QQuickWindow::frameSwapped, &loop, [this, &loop] {
        if (m_firstFrameMs < 0) {
            m_firstFrameMs = m_started.elapsed();
            m_firstFrameCpuUs = ProcessStats::ownCpuUs();
        }
        loop.quit();
    });
    QTimer::singleShot(timeoutMs, &loop, &QEventLoop::quit);
    loop.exec();
    if (m_firstFrameMs < 0) {
        m_problems.append(u"the main window drew nothing within %1 ms"_s.arg(timeoutMs));
        return;
    }
    // Bindings that run just after the first frame (the model starting) get to warn too.
    QTimer::singleShot(graceMs, &loop, &QEventLoop::quit);
    loop.exec();
}

qint64 SelfTest::timeOpening(QQuickWindow *main, int timeoutMs)
{
    QEventLoop loop;
    QElapsedTimer timer;
    qint64 elapsed = -1;
    const QMetaObject::Connection drawn = connect(main, &QQuickWindow::frameSwapped, &loop, [&] {
        elapsed = timer.elapsed();
        loop.quit();
    });
    QTimer::singleShot(timeoutMs, &loop, &QEventLoop::quit);
    timer.start();
    m_open();
    main->update();
    loop.exec();
    disconnect(drawn);
    if (elapsed < 0)
        m_problems.append(u"the opened section drew nothing within %1 ms"_s.arg(timeoutMs));
    return elapsed;
}

} // namespace quorvane
