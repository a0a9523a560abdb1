#pragma once

#include "shell/QmlType.h"

#include <QList>
#include <QStringList>
#include <QUrl>

#include <functional>
#include <memory>

class QObject;

class QQmlEngine;

namespace quorvane::QmlPreload {

// Starts compiling QML documents, and every type they use, on the engine's loader thread while
// the main thread goes on with other work; whoever asks for one of them later finds it ready,
// or waits only for the rest. The work belongs to the engine and ends with it.
void start(QQmlEngine &engine, const QList<QUrl> &documents);

// A piece of work for the main thread while it waits: true when done, false when it can't be
// done yet (it is asked again a moment later).
using Chore = std::function<bool()>;

// Does the chores, one at a time, answering the loader thread in between: it asks the main
// thread to set up each module it imports and gets on only while the main thread attends to
// it. A start about to wait for other work (the saved data decoded on a thread of its own)
// waits here instead, as a chore that is done once that work is. Each chore should take a
// moment only.
void serve(const QList<Chore> &chores);

// Waits until those documents are compiled, answering the loader thread meanwhile. While they
// are still on their way it does the spare chores, in order: work that makes what follows
// cheaper but is only worth doing while the main thread would otherwise wait. Those left when
// the documents are ready are dropped.
void finish(QQmlEngine &engine, const QList<QUrl> &documents, const QList<Chore> &spare = {});

// Makes the document's root object, once it is compiled; null when it can't be made, with the
// reasons among the engine's warnings. The caller keeps the object and deletes it before the
// engine. (Unlike QQmlApplicationEngine::load, this looks for no translations beside the
// document: the application installs its own.)
[[nodiscard]] std::unique_ptr<QObject> create(QQmlEngine &engine, const QUrl &document);

// Loads the plugins of those Qt modules (by URI, "QtQuick.Controls"), and the libraries they
// stand on, into the process, on the calling thread, so that a side thread can do it while the
// engine's loader works on something else; the loader then finds them loaded. A module without a
// plugin, or one that doesn't load, is left to the loader.
void loadPlugins(const QStringList &modules);

// The file of a type of one of the app's modules, where the build puts it:
// "Quorvane.Today" "TodayView" → qrc:/qt/qml/Quorvane/Today/TodayView.qml.
[[nodiscard]] QUrl fileOf(const QmlType &type);

} // namespace quorvane::QmlPreload
