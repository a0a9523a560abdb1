#pragma once

#include <QKeySequence>
#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <functional>

namespace quorvane {

// One thing the user can do from a menu, a key, a toolbar or tray button, or the command
// palette, as one row of the command table: every place that offers it shows the same title
// and symbol and answers to the same key.
class Command : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Commands come from the command table.")
    // A stable word, used as the objectName of what shows the command ("refresh", "go.today").
    Q_PROPERTY(QString name READ objectName CONSTANT)
    Q_PROPERTY(QString title READ title CONSTANT)
    Q_PROPERTY(QString symbol READ symbol CONSTANT)
    // The key for QML's Action.shortcut ("Ctrl+Shift+S"), and the same as this desktop writes
    // it in labels; both empty for a command without a key.
    Q_PROPERTY(QString shortcut READ shortcut CONSTANT)
    Q_PROPERTY(QString shortcutText READ shortcutText CONSTANT)
    // Its title in the command palette; empty for a command the palette doesn't list.
    Q_PROPERTY(QString paletteTitle READ paletteTitle CONSTANT)
    // False for a command this build or this machine can't offer: it isn't shown at all.
    Q_PROPERTY(bool available READ available CONSTANT)
    Q_PROPERTY(bool enabled READ enabled NOTIFY enabledChanged)

public:
    struct Row {
        QString name;
        QString title;
        QString symbol;
        QKeySequence keys;
        QString paletteTitle;
        std::function<void()> run;
        std::function<bool()> isEnabled; // none: always enabled
        bool available = true;
    };

    explicit Command(Row row, QObject *parent = nullptr);

    [[nodiscard]] const QString &title() const { return m_row.title; }
    [[nodiscard]] const QString &symbol() const { return m_row.symbol; }
    [[nodiscard]] const QKeySequence &keys() const { return m_row.keys; }
    [[nodiscard]] QString shortcut() const;
    [[nodiscard]] QString shortcutText() const;
    [[nodiscard]] const QString &paletteTitle() const { return m_row.paletteTitle; }
    [[nodiscard]] bool available() const { return m_row.available; }
    [[nodiscard]] bool enabled() const;

    // Does what the command names, if it is available and enabled now.
    Q_INVOKABLE void trigger();

Q_SIGNALS:
    void enabledChanged();

private:
    Row m_row;
};

} // namespace quorvane
