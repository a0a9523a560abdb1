#pragma once

#include "components/Tint.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace quorvane {

// The named tints for QML, in the appearance the application has now; they change with it
// (a new application palette), open windows and all. Screens read them through Style, which
// adds the spacing and corner scales; this type is how Style reaches the one table of colours
// in Tints.
class SystemColors : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(bool dark READ dark NOTIFY changed)
    Q_PROPERTY(QColor accent READ accent NOTIFY changed)
    Q_PROPERTY(QColor red READ red NOTIFY changed)
    Q_PROPERTY(QColor orange READ orange NOTIFY changed)
    Q_PROPERTY(QColor yellow READ yellow NOTIFY changed)
    Q_PROPERTY(QColor green READ green NOTIFY changed)
    Q_PROPERTY(QColor blue READ blue NOTIFY changed)
    Q_PROPERTY(QColor purple READ purple NOTIFY changed)
    Q_PROPERTY(QColor pink READ pink NOTIFY changed)
    Q_PROPERTY(QColor secondary READ secondary NOTIFY changed)
    Q_PROPERTY(QColor unknownType READ unknownType NOTIFY changed)

public:
    explicit SystemColors(QObject *parent = nullptr);

    [[nodiscard]] bool dark() const { return m_dark; }
    [[nodiscard]] QColor accent() const { return Tints::color(Tint::accent, m_dark); }
    [[nodiscard]] QColor red() const { return Tints::color(Tint::red, m_dark); }
    [[nodiscard]] QColor orange() const { return Tints::color(Tint::orange, m_dark); }
    [[nodiscard]] QColor yellow() const { return Tints::color(Tint::yellow, m_dark); }
    [[nodiscard]] QColor green() const { return Tints::color(Tint::green, m_dark); }
    [[nodiscard]] QColor blue() const { return Tints::color(Tint::blue, m_dark); }
    [[nodiscard]] QColor purple() const { return Tints::color(Tint::purple, m_dark); }
    [[nodiscard]] QColor pink() const { return Tints::color(Tint::pink, m_dark); }
    [[nodiscard]] QColor secondary() const { return Tints::color(Tint::secondary, m_dark); }
    [[nodiscard]] QColor unknownType() const { return Tints::color(Tints::unknownType, m_dark); }

    // A colour from a hex text as the server writes it (see HexColor::parse).
    Q_INVOKABLE static QColor fromHex(const QString &hex);

Q_SIGNALS:
    void changed();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void update();

    bool m_dark = false;
};

} // namespace quorvane
