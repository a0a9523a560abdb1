#pragma once

#include "shell/QmlType.h"

#include <QList>
#include <QUrl>

class QQmlEngine;

namespace quorvane::QmlPreload {

// Starts compiling QML documents, and every type they use, on the engine's loader thread while
// the main thread goes on with other work; whoever asks for one of them later finds it ready,
// or waits only for the rest. The work belongs to the engine and ends with it.
void start(QQmlEngine &engine, const QList<QUrl> &documents);

// The file of a type of one of the app's modules, where the build puts it:
// "Quorvane.Today" "TodayView" → qrc:/qt/qml/Quorvane/Today/TodayView.qml.
[[nodiscard]] QUrl fileOf(const QmlType &type);

} // namespace quorvane::QmlPreload
