#pragma once

#include <QString>

#include <utility>
#include <variant>

namespace quorvane {

// Why a JSON document did not decode: where in the document, and what was wrong.
struct DecodeError {
    QString path;   // such as "upcoming[2].start"; empty for the document itself
    QString reason; // such as "Bad date 2026-03-10"

    [[nodiscard]] QString description() const { return path.isEmpty() ? reason : path + QStringLiteral(": ") + reason; }
    bool operator==(const DecodeError &) const = default;
};

// A decoded value or the reason there is none.
template <class T>
class Result
{
public:
    Result(T value)
        : m_state(std::move(value))
    {}
    Result(DecodeError error)
        : m_state(std::move(error))
    {}

    [[nodiscard]] bool ok() const { return std::holds_alternative<T>(m_state); }
    explicit operator bool() const { return ok(); }

    [[nodiscard]] const T &value() const & { return std::get<T>(m_state); }
    [[nodiscard]] T &&value() && { return std::get<T>(std::move(m_state)); }
    [[nodiscard]] const T *operator->() const { return &std::get<T>(m_state); }
    [[nodiscard]] const T &operator*() const & { return value(); }

    [[nodiscard]] const DecodeError &error() const { return std::get<DecodeError>(m_state); }

    template <class U>
    [[nodiscard]] T valueOr(U &&fallback) const
    {
        return ok() ? value() : T(std::forward<U>(fallback));
    }

private:
    std::variant<T, DecodeError> m_state;
};

} // namespace quorvane
