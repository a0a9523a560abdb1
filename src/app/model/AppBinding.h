#pragma once

#include "model/AppModel.h"

#include <QList>
#include <QPointer>

// View models take the application model as a QML property and redraw on some of its
// signals; this moves those connections when the property changes.
namespace quorvane::AppBinding {

using Signal = void (AppModel::*)();

// Points `current` at `next` and reconnects: afterwards each of `signals` of `next` calls
// `slot` on `receiver`, and nothing of the old model reaches it. False when `next` is the
// model already followed.
template <typename Receiver, typename Slot>
bool follow(QPointer<AppModel> &current, AppModel *next, Receiver *receiver, const QList<Signal> &signals, Slot slot)
{
    if (current == next)
        return false;
    if (current)
        QObject::disconnect(current, nullptr, receiver, nullptr);
    current = next;
    if (next) {
        for (const Signal signal : signals)
            QObject::connect(next, signal, receiver, slot);
    }
    return true;
}

} // namespace quorvane::AppBinding
