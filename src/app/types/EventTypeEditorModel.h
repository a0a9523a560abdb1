#pragma once

#include "model/AppViewModel.h"

#include "EventType.h"

#include <QColor>

namespace quorvane {

// The editor of one event type: a working copy taken from the draft when `typeId` is first
// set, which every control edits. Each change puts the whole copy in place of the draft's
// entry with its id, one edit each; a type gone from the draft is left alone. The copy is
// never read back, so the editor is made anew for each selected type.
class EventTypeEditorModel : public AppViewModel
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString typeId READ typeId WRITE setTypeId NOTIFY changed)
    Q_PROPERTY(bool loaded READ loaded NOTIFY changed)
    Q_PROPERTY(QString title READ title WRITE setTitle NOTIFY changed)
    Q_PROPERTY(bool active READ active WRITE setActive NOTIFY changed)
    Q_PROPERTY(QString colorHex READ colorHex WRITE setColorHex NOTIFY changed)
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY changed)
    Q_PROPERTY(QString description READ description WRITE setDescription NOTIFY changed)
    Q_PROPERTY(QString slug READ slug WRITE setSlug NOTIFY changed)
    // "/ilse/" before the slug field; "//" without an account handle.
    Q_PROPERTY(QString handlePrefix READ handlePrefix NOTIFY changed)
    Q_PROPERTY(QString link READ link NOTIFY changed)
    Q_PROPERTY(int minutes READ minutes WRITE setMinutes NOTIFY changed)
    // The duration choice: "30 min" each, and the position of the current one.
    Q_PROPERTY(QStringList durationLabels READ durationLabels NOTIFY changed)
    Q_PROPERTY(int durationIndex READ durationIndex WRITE setDurationIndex NOTIFY changed)
    Q_PROPERTY(int bufferBefore READ bufferBefore WRITE setBufferBefore NOTIFY changed)
    Q_PROPERTY(int bufferAfter READ bufferAfter WRITE setBufferAfter NOTIFY changed)
    // The location as its position in locationLabels, and what goes under the choice.
    Q_PROPERTY(int location READ location WRITE setLocation NOTIFY changed)
    Q_PROPERTY(QStringList locationLabels READ locationLabels CONSTANT)
    Q_PROPERTY(QStringList locationSymbols READ locationSymbols CONSTANT)
    Q_PROPERTY(QString locationDetail READ locationDetail WRITE setLocationDetail NOTIFY changed)
    Q_PROPERTY(QString detailPrompt READ detailPrompt NOTIFY changed)
    Q_PROPERTY(QString locationNote READ locationNote NOTIFY changed)
    Q_PROPERTY(QStringList questions READ questions NOTIFY changed)
    Q_PROPERTY(QString newQuestion READ newQuestion WRITE setNewQuestion NOTIFY changed)
    Q_PROPERTY(bool canAddQuestion READ canAddQuestion NOTIFY changed)
    Q_PROPERTY(QStringList paletteColors READ paletteColors CONSTANT)

public:
    explicit EventTypeEditorModel(QObject *parent = nullptr);

    [[nodiscard]] const QString &typeId() const { return m_typeId; }
    // The first id given is the one edited; later ones are ignored.
    void setTypeId(const QString &id);
    [[nodiscard]] bool loaded() const { return m_loaded; }
    [[nodiscard]] const EventType &type() const { return m_t; }

    [[nodiscard]] const QString &title() const { return m_t.title; }
    void setTitle(const QString &value);
    [[nodiscard]] bool active() const { return m_t.isActive; }
    void setActive(bool value);
    [[nodiscard]] const QString &colorHex() const { return m_t.colorHex; }
    void setColorHex(const QString &value);
    [[nodiscard]] QColor color() const;
    void setColor(const QColor &value);
    [[nodiscard]] const QString &description() const { return m_t.description; }
    void setDescription(const QString &value);
    [[nodiscard]] const QString &slug() const { return m_t.slug; }
    void setSlug(const QString &typed);
    [[nodiscard]] QString handlePrefix() const;
    [[nodiscard]] QString link() const;
    [[nodiscard]] int minutes() const { return m_t.minutes; }
    void setMinutes(int value);
    [[nodiscard]] QStringList durationLabels() const;
    [[nodiscard]] int durationIndex() const;
    void setDurationIndex(int index);
    [[nodiscard]] int bufferBefore() const { return m_t.bufferBefore; }
    void setBufferBefore(int value);
    [[nodiscard]] int bufferAfter() const { return m_t.bufferAfter; }
    void setBufferAfter(int value);
    [[nodiscard]] int location() const;
    void setLocation(int index);
    [[nodiscard]] static QStringList locationLabels();
    [[nodiscard]] static QStringList locationSymbols();
    [[nodiscard]] const QString &locationDetail() const { return m_t.locationDetail; }
    void setLocationDetail(const QString &value);
    [[nodiscard]] QString detailPrompt() const;
    [[nodiscard]] QString locationNote() const;
    [[nodiscard]] const QStringList &questions() const { return m_t.questions; }
    [[nodiscard]] const QString &newQuestion() const { return m_newQuestion; }
    void setNewQuestion(const QString &value);
    [[nodiscard]] bool canAddQuestion() const;
    [[nodiscard]] static QStringList paletteColors();

    // The typed question at the end of the list, and the field emptied; nothing when it is
    // blank or the list is full.
    Q_INVOKABLE void addQuestion();
    Q_INVOKABLE void removeQuestion(int index);
    // The public link on the clipboard, with a toast.
    Q_INVOKABLE void copyLink();
    // The public link in the browser, if it makes a URL.
    Q_INVOKABLE void open();

protected:
    void recompute() override;

private:
    // `t` after `edit`: if it differs, QML hears of it and the draft gets the whole of it.
    template <typename Edit>
    void change(Edit edit);

    QString m_typeId;
    bool m_loaded = false;
    EventType m_t;
    QString m_newQuestion;
};

} // namespace quorvane
