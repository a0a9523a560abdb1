#include "JSONScan.h"

#include <QByteArrayView>
#include <QJsonArray>
#include <QJsonDocument>

#include <cstring>
#include <limits>

namespace quorvane {

namespace {
constexpr int deepest = 64; // far deeper than any record; deeper texts are left to QJsonDocument

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

int hexValue(char c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    if (c >= 'a' && c <= 'f')
        return c - 'a' + 10;
    if (c >= 'A' && c <= 'F')
        return c - 'A' + 10;
    return -1;
}

// The four hex digits at `p`, or -1.
int hex4(const char *p)
{
    int out = 0;
    for (int i = 0; i < 4; ++i) {
        const int digit = hexValue(p[i]);
        if (digit < 0)
            return -1;
        out = out * 16 + digit;
    }
    return out;
}

bool isHighSurrogate(int u)
{
    return u >= 0xD800 && u <= 0xDBFF;
}

bool isLowSurrogate(int u)
{
    return u >= 0xDC00 && u <= 0xDFFF;
}
} // namespace

// Recursive descent over the bytes. Every refusal returns false: the caller then leaves the
// whole text to QJsonDocument.
class JSONScan::Parser
{
public:
    Parser(const QByteArray &text, std::vector<Node> &nodes)
        : m_begin(text.constData())
        , m_p(text.constData())
        , m_end(text.constData() + text.size())
        , m_nodes(nodes)
    {}

    bool document()
    {
        space();
        if (!value(0))
            return false;
        space();
        return m_p == m_end;
    }

private:
    void space()
    {
        while (m_p < m_end && (*m_p == ' ' || *m_p == '\n' || *m_p == '\r' || *m_p == '\t'))
            ++m_p;
    }

    qint32 add(Kind kind, const char *begin)
    {
        m_nodes.push_back(Node{kind, false, false, qint32(begin - m_begin), 0, -1});
        return qint32(m_nodes.size() - 1);
    }

    bool literal(const char *word, Kind kind, bool flag)
    {
        const size_t length = std::strlen(word);
        if (size_t(m_end - m_p) < length || std::memcmp(m_p, word, length) != 0)
            return false;
        const qint32 node = add(kind, m_p);
        m_nodes[size_t(node)].flag = flag;
        m_p += length;
        m_nodes[size_t(node)].end = qint32(m_p - m_begin);
        return true;
    }

    // -?(0|[1-9][0-9]*)(.[0-9]+)?([eE][+-]?[0-9]+)?
    bool number()
    {
        const char *start = m_p;
        if (m_p < m_end && *m_p == '-')
            ++m_p;
        if (m_p < m_end && *m_p == '0') {
            ++m_p;
        } else if (m_p < m_end && *m_p >= '1' && *m_p <= '9') {
            while (m_p < m_end && isDigit(*m_p))
                ++m_p;
        } else {
            return false;
        }
        if (m_p < m_end && *m_p == '.') {
            ++m_p;
            if (m_p == m_end || !isDigit(*m_p))
                return false;
            while (m_p < m_end && isDigit(*m_p))
                ++m_p;
        }
        if (m_p < m_end && (*m_p == 'e' || *m_p == 'E')) {
            ++m_p;
            if (m_p < m_end && (*m_p == '+' || *m_p == '-'))
                ++m_p;
            if (m_p == m_end || !isDigit(*m_p))
                return false;
            while (m_p < m_end && isDigit(*m_p))
                ++m_p;
        }
        // QJsonDocument refuses a number beyond a double's range.
        bool ok = false;
        (void)QByteArray::fromRawData(start, m_p - start).toDouble(&ok);
        if (!ok)
            return false;
        const qint32 node = add(Kind::number, start);
        m_nodes[size_t(node)].end = qint32(m_p - m_begin);
        return true;
    }

    // A text: no raw control characters, escapes as JSON has them, surrogates in pairs.
    bool text()
    {
        ++m_p; // the opening quote
        const qint32 node = add(Kind::text, m_p);
        bool escaped = false;
        unsigned char high = 0;
        while (m_p < m_end && *m_p != '"') {
            const auto c = static_cast<unsigned char>(*m_p);
            if (c < 0x20)
                return false;
            if (c != '\\') {
                high |= c;
                ++m_p;
                continue;
            }
            escaped = true;
            if (m_end - m_p < 2)
                return false;
            switch (m_p[1]) {
            case '"':
            case '\\':
            case '/':
            case 'b':
            case 'f':
            case 'n':
            case 'r':
            case 't':
                m_p += 2;
                break;
            case 'u': {
                if (m_end - m_p < 6)
                    return false;
                const int unit = hex4(m_p + 2);
                if (unit < 0 || isLowSurrogate(unit))
                    return false;
                m_p += 6;
                if (isHighSurrogate(unit)) {
                    if (m_end - m_p < 6 || m_p[0] != '\\' || m_p[1] != 'u' || !isLowSurrogate(hex4(m_p + 2)))
                        return false;
                    m_p += 6;
                }
                break;
            }
            default:
                return false;
            }
        }
        if (m_p == m_end)
            return false;
        m_nodes[size_t(node)].flag = escaped;
        m_nodes[size_t(node)].ascii = high < 0x80;
        m_nodes[size_t(node)].end = qint32(m_p - m_begin);
        ++m_p; // the closing quote
        return true;
    }

    // The members up to `close`, comma-separated: `one` reads one and gives the node that
    // links it to the next (an element, or an object's key), or -1 to refuse.
    template <typename One>
    bool members(qint32 node, char close, One one)
    {
        ++m_p; // the opening bracket
        space();
        qint32 previous = -1;
        while (m_p < m_end && *m_p != close) {
            if (previous >= 0) {
                if (*m_p != ',')
                    return false;
                ++m_p;
                space();
            }
            const qint32 linked = one(previous);
            if (linked < 0)
                return false;
            if (previous >= 0)
                m_nodes[size_t(previous)].next = linked;
            previous = linked;
            space();
        }
        if (m_p == m_end)
            return false;
        ++m_p;
        m_nodes[size_t(node)].flag = previous >= 0;
        m_nodes[size_t(node)].end = qint32(m_p - m_begin);
        return true;
    }

    bool array(int depth)
    {
        return members(add(Kind::array, m_p), ']', [this, depth](qint32) {
            const auto element = qint32(m_nodes.size());
            return value(depth + 1) ? element : -1;
        });
    }

    // Keys must rise strictly, byte by byte, and hold no escapes: so written, a key is found
    // by its bytes, and no key comes twice.
    bool object(int depth)
    {
        return members(add(Kind::object, m_p), '}', [this, depth](qint32 previous) {
            if (m_p == m_end || *m_p != '"')
                return -1;
            const auto key = qint32(m_nodes.size());
            if (!text() || m_nodes[size_t(key)].flag)
                return -1;
            if (previous >= 0 && !rises(m_nodes[size_t(previous)], m_nodes[size_t(key)]))
                return -1;
            space();
            if (m_p == m_end || *m_p != ':')
                return -1;
            ++m_p;
            space();
            return value(depth + 1) ? key : -1;
        });
    }

    bool rises(const Node &before, const Node &after) const
    {
        const QByteArrayView a(m_begin + before.begin, before.end - before.begin);
        const QByteArrayView b(m_begin + after.begin, after.end - after.begin);
        return a.compare(b) < 0;
    }

    bool value(int depth)
    {
        if (depth > deepest || m_p == m_end)
            return false;
        switch (*m_p) {
        case '{':
            return object(depth);
        case '[':
            return array(depth);
        case '"':
            return text();
        case 't':
            return literal("true", Kind::boolean, true);
        case 'f':
            return literal("false", Kind::boolean, false);
        case 'n':
            return literal("null", Kind::null, false);
        default:
            return number();
        }
    }

    const char *m_begin;
    const char *m_p;
    const char *m_end;
    std::vector<Node> &m_nodes;
};

std::optional<JSONScan> JSONScan::of(const QByteArray &text)
{
    // QJsonDocument refuses invalid UTF-8 anywhere; outside texts JSON has only ASCII.
    if (text.size() >= std::numeric_limits<qint32>::max() || !QByteArrayView(text).isValidUtf8())
        return std::nullopt;
    JSONScan scan;
    scan.m_text = text;
    scan.m_nodes.reserve(size_t(text.size() / 12) + 1);
    if (!Parser(scan.m_text, scan.m_nodes).document())
        return std::nullopt;
    return scan;
}

JSONScan::Kind JSONScan::Value::kind() const
{
    return m_scan ? m_scan->m_nodes[size_t(m_node)].kind : Kind::missing;
}

bool JSONScan::Value::boolean() const
{
    return m_scan->m_nodes[size_t(m_node)].flag;
}

QString JSONScan::Value::text() const
{
    const Node &node = m_scan->m_nodes[size_t(m_node)];
    const char *p = m_scan->m_text.constData() + node.begin;
    const char *end = m_scan->m_text.constData() + node.end;
    if (!node.flag)
        return node.ascii ? QString::fromLatin1(p, end - p) : QString::fromUtf8(p, end - p);
    // Escapes, checked when scanned.
    QString out;
    out.reserve(end - p);
    while (p < end) {
        const char *plain = p;
        while (p < end && *p != '\\')
            ++p;
        out += QString::fromUtf8(plain, p - plain);
        if (p == end)
            break;
        switch (p[1]) {
        case 'b':
            out += u'\b';
            break;
        case 'f':
            out += u'\f';
            break;
        case 'n':
            out += u'\n';
            break;
        case 'r':
            out += u'\r';
            break;
        case 't':
            out += u'\t';
            break;
        case 'u': {
            out += QChar(char16_t(hex4(p + 2)));
            p += 4;
            break;
        }
        default: // " \ /
            out += QLatin1Char(p[1]);
            break;
        }
        p += 2;
    }
    return out;
}

JSONScan::Value JSONScan::Value::member(QLatin1StringView key) const
{
    const Node &node = m_scan->m_nodes[size_t(m_node)];
    if (node.kind != Kind::object || !node.flag)
        return {};
    const char *text = m_scan->m_text.constData();
    const QByteArrayView wanted(key.data(), key.size());
    const auto first = wanted.isEmpty() ? 0 : static_cast<unsigned char>(wanted.front());
    for (qint32 k = m_node + 1; k >= 0; k = m_scan->m_nodes[size_t(k)].next) {
        const Node &name = m_scan->m_nodes[size_t(k)];
        // Most keys differ in their first byte, which also orders them.
        const auto lead = name.end > name.begin ? static_cast<unsigned char>(text[name.begin]) : 0;
        if (lead < first)
            continue;
        if (lead > first)
            break; // the keys rise: it isn't there
        const int order = QByteArrayView(text + name.begin, name.end - name.begin).compare(wanted);
        if (order == 0)
            return Value(m_scan, k + 1);
        if (order > 0)
            break;
    }
    return {};
}

std::vector<JSONScan::Value> JSONScan::Value::elements() const
{
    std::vector<Value> out;
    const Node &node = m_scan->m_nodes[size_t(m_node)];
    if (node.kind != Kind::array || !node.flag)
        return out;
    for (qint32 e = m_node + 1; e >= 0; e = m_scan->m_nodes[size_t(e)].next)
        out.push_back(Value(m_scan, e));
    return out;
}

std::vector<std::pair<QString, JSONScan::Value>> JSONScan::Value::members() const
{
    std::vector<std::pair<QString, Value>> out;
    const Node &node = m_scan->m_nodes[size_t(m_node)];
    if (node.kind != Kind::object || !node.flag)
        return out;
    for (qint32 k = m_node + 1; k >= 0; k = m_scan->m_nodes[size_t(k)].next)
        out.emplace_back(Value(m_scan, k).text(), Value(m_scan, k + 1));
    return out;
}

QJsonValue JSONScan::Value::toJsonValue() const
{
    switch (kind()) {
    case Kind::missing:
        return QJsonValue(QJsonValue::Undefined);
    case Kind::null:
        return QJsonValue(QJsonValue::Null);
    case Kind::boolean:
        return boolean();
    case Kind::text:
        return text();
    case Kind::number:
    case Kind::array:
    case Kind::object:
        break;
    }
    // Numbers and containers as QJsonDocument reads them, from their own bytes.
    const Node &node = m_scan->m_nodes[size_t(m_node)];
    const QByteArray bytes = '[' + m_scan->m_text.mid(node.begin, node.end - node.begin) + ']';
    return QJsonDocument::fromJson(bytes).array().first();
}

} // namespace quorvane
