#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace quorvane {

// Qt's focus policies under a name of the app's own, for QML: `focusPolicy: FocusPolicy.NoFocus`.
// `Qt.NoFocus` means the same, but the first look-up of any `Qt.` value builds the engine's
// table of every name in the Qt namespace, about a millisecond that the main window's first
// frame would otherwise pay for a row that takes no focus.
namespace FocusPolicy {
Q_NAMESPACE
QML_ELEMENT

enum Value {
    NoFocus = Qt::NoFocus,
    TabFocus = Qt::TabFocus,
    ClickFocus = Qt::ClickFocus,
    StrongFocus = Qt::StrongFocus
};
Q_ENUM_NS(Value)
} // namespace FocusPolicy

} // namespace quorvane
