#pragma once

#include <QByteArray>
#include <QJsonValue>
#include <QLatin1StringView>
#include <QString>

#include <optional>
#include <utility>
#include <vector>

namespace quorvane {

// A JSON text read once into a flat list of its values, converting none of them: a text stays
// bytes until it is asked for, and an object's member is found by comparing bytes. It reads
// JSON as this app writes it (valid UTF-8, each object's keys in ascending order, as
// QJsonDocument writes them) and declines anything else, which QJsonDocument then reads. What
// it does read, it reads as QJsonDocument would.
class JSONScan
{
public:
    enum class Kind : quint8 { missing, null, boolean, number, text, array, object };

    // One value of the text, or a missing one (an absent member).
    class Value
    {
    public:
        Value() = default;

        [[nodiscard]] Kind kind() const;
        [[nodiscard]] bool isMissing() const { return kind() == Kind::missing; }
        [[nodiscard]] bool isNull() const { return kind() == Kind::null; }
        // Only for a boolean.
        [[nodiscard]] bool boolean() const;
        // Only for a text.
        [[nodiscard]] QString text() const;
        // The object's member under that key, or a missing value.
        [[nodiscard]] Value member(QLatin1StringView key) const;
        // The array's elements, in order.
        [[nodiscard]] std::vector<Value> elements() const;
        // The object's members, by key, in order.
        [[nodiscard]] std::vector<std::pair<QString, Value>> members() const;
        // The same value as QJsonDocument would have read it.
        [[nodiscard]] QJsonValue toJsonValue() const;

    private:
        friend class JSONScan;
        Value(const JSONScan *scan, qint32 node)
            : m_scan(scan)
            , m_node(node)
        {}
        const JSONScan *m_scan = nullptr;
        qint32 m_node = -1;
    };

    // Null when the text is not one it reads.
    [[nodiscard]] static std::optional<JSONScan> of(const QByteArray &text);

    [[nodiscard]] Value root() const { return Value(this, 0); }

private:
    struct Node {
        Kind kind = Kind::null;
        bool flag = false;  // a boolean's value; for a text, whether it holds escapes
        bool ascii = false; // for a text, whether all its bytes are ASCII
        qint32 begin = 0;   // the value's bytes; a text's without its quotes
        qint32 end = 0;
        qint32 next = -1; // the next element, or the next key of the object
    };
    class Parser;

    JSONScan() = default;

    QByteArray m_text;
    std::vector<Node> m_nodes;
};

} // namespace quorvane
