#pragma once

#include "components/Tint.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace quorvane {

// The named tints for QML. Screens read them through Style, which adds the spacing and corner
// scales; this type is how Style reaches the one table of colours in Tints.
class SystemColors : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(QColor accent READ accent CONSTANT)
    Q_PROPERTY(QColor red READ red CONSTANT)
    Q_PROPERTY(QColor orange READ orange CONSTANT)
    Q_PROPERTY(QColor yellow READ yellow CONSTANT)
    Q_PROPERTY(QColor green READ green CONSTANT)
    Q_PROPERTY(QColor blue READ blue CONSTANT)
    Q_PROPERTY(QColor purple READ purple CONSTANT)
    Q_PROPERTY(QColor pink READ pink CONSTANT)
    Q_PROPERTY(QColor secondary READ secondary CONSTANT)
    Q_PROPERTY(QColor unknownType READ unknownType CONSTANT)

public:
    using QObject::QObject;

    [[nodiscard]] static QColor accent() { return Tints::color(Tint::accent); }
    [[nodiscard]] static QColor red() { return Tints::color(Tint::red); }
    [[nodiscard]] static QColor orange() { return Tints::color(Tint::orange); }
    [[nodiscard]] static QColor yellow() { return Tints::color(Tint::yellow); }
    [[nodiscard]] static QColor green() { return Tints::color(Tint::green); }
    [[nodiscard]] static QColor blue() { return Tints::color(Tint::blue); }
    [[nodiscard]] static QColor purple() { return Tints::color(Tint::purple); }
    [[nodiscard]] static QColor pink() { return Tints::color(Tint::pink); }
    [[nodiscard]] static QColor secondary() { return Tints::color(Tint::secondary); }
    [[nodiscard]] static QColor unknownType() { return Tints::color(Tints::unknownType); }

    // A colour from a hex text as the server writes it (see HexColor::parse).
    Q_INVOKABLE static QColor fromHex(const QString &hex);
};

} // namespace quorvane
