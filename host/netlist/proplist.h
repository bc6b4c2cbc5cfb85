// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <optional>
#include <utility>
#include <vector>

/// What is looked up in many property lists. The lists of one netlist share a table of names; what the table
/// found out about this text is remembered here, so that the next look-up compares numbers.
class PROPKEY
{
public:
    [[nodiscard]] const QByteArray &name() const { return m_name; }

    /// What the table with that stamp remembered, null when nothing or when it was another table.
    [[nodiscard]] const void *remembered(quint64 stamp) const { return stamp == m_stamp ? m_found : nullptr; }
    void remember(quint64 stamp, const void *found) const
    {
        m_stamp = stamp;
        m_found = found;
    }

protected:
    explicit PROPKEY(QByteArray name)
        : m_name(std::move(name))
    {
    }

private:
    QByteArray m_name;
    mutable quint64 m_stamp = 0;
    mutable const void *m_found = nullptr;
};

/// A property name prepared for being looked up.
class PROPNAME final : public PROPKEY
{
public:
    explicit PROPNAME(QByteArray name)
        : PROPKEY(std::move(name))
    {
    }
};

/// What names begin with that are looked up together; letter case counts.
class PROPPREFIX final : public PROPKEY
{
public:
    explicit PROPPREFIX(QByteArray start)
        : PROPKEY(std::move(start))
    {
    }
};

/// A property as it is stored.
struct PROPERTY
{
    QByteArrayView name;
    QByteArrayView value;
};

/// The properties of one component. Texts are host text and stay valid until the netlist is read again.
class PROPLIST
{
public:
    virtual ~PROPLIST() = default;

    /// The value of a property, nothing when the component does not have it.
    [[nodiscard]] virtual std::optional<QByteArrayView> find(const PROPNAME &name) const = 0;

    /// The properties whose names begin like that, in list order. Costs next to nothing where no component of
    /// the netlist has one.
    [[nodiscard]] virtual std::vector<PROPERTY> startingwith(const PROPPREFIX &prefix) const = 0;

    /// All properties, each under its own name, in list order.
    [[nodiscard]] virtual std::vector<PROPERTY> all() const = 0;

    /// Non-zero when the component has the property.
    [[nodiscard]] int test(const char *name) const { return find(PROPNAME(name)) ? 1 : 0; }

    /// The value of a property, empty when the component does not have it.
    [[nodiscard]] QByteArrayView operator[](const char *name) const
    {
        return find(PROPNAME(name)).value_or(QByteArrayView());
    }

protected:
    PROPLIST() = default;
    PROPLIST(const PROPLIST &) = default;
    PROPLIST &operator=(const PROPLIST &) = default;
};
