#pragma once

#include "shell/QmlType.h"

#include <QElapsedTimer>
#include <QQuickWindow>

#include <QObject>
#include <QStringList>
#include <QUrl>
#include <functional>
#include <memory>

class QQmlEngine;

namespace quorvane {

// `quorvane --self-test`: starts the shell as a launch would, waits for the main window's first
// frame, then compiles every other QML file of the app. Any QML warning or error, or no frame
// in time, fails it. Its one line of report gives the first frame's time, the resident memory
// at that point and the processor time all threads spent on it, which the start-up benchmark
// reads.
class SelfTest : public QObject
{
    Q_OBJECT

public:
    // `started` runs since the process began, when it had used `cpuAtStartUs` of processor time
    // (ProcessStats::ownCpuUs); the report gives the first frame's time and processor time from
    // there.
    SelfTest(QQmlEngine &engine, QElapsedTimer started, qint64 cpuAtStartUs, QObject *parent = nullptr);
    ~SelfTest() override;

    // Every QML file below `folder` (of the resources, by default) but singletons, sorted, as URLs.
    [[nodiscard]] static QStringList qmlFiles(const QString &folder = QStringLiteral(":/qt/qml/Quorvane"));

    // Loads `root`, waits for the window named "main" to draw, then compiles every file of
    // qmlFiles(folder) and makes each of `views`; prints one line to stdout on success, each
    // problem to stderr. Gives the process's exit code.
    int run(const QUrl &root, const QList<QmlType> &views, const QString &folder = QStringLiteral(":/qt/qml/Quorvane"),
            int timeoutMs = 30'000);

    // After the first frame, the self-test calls `open` and times the main window's next frame:
    // how long a section takes to show the first time. The report gives it too.
    void timeOpening(std::function<void()> open) { m_open = std::move(open); }

    [[nodiscard]] const QStringList &problems() const { return m_problems; }
    [[nodiscard]] qint64 firstFrameMs() const { return m_firstFrameMs; }

private:
    void compileViews(const QList<QmlType> &views);
    void compile(const QStringList &files);
    void waitForFirstFrame(int timeoutMs);
    // The time from `m_open` to the main window's next frame, or -1.
    qint64 timeOpening(QQuickWindow *main, int timeoutMs);
    static void onMessage(QtMsgType type, const QMessageLogContext &context, const QString &text);

    QQmlEngine &m_engine;
    std::unique_ptr<QObject> m_root;
    QElapsedTimer m_started;
    qint64 m_cpuAtStartUs = 0;
    qint64 m_firstFrameCpuUs = -1;
    QStringList m_problems;
    qint64 m_firstFrameMs = -1;
    std::function<void()> m_open;
    qint64 m_openingMs = -1;
    QQuickWindow *m_main = nullptr;
};

} // namespace quorvane
