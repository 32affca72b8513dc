#pragma once
// An ordered list with 1-based positions, holding shared objects so that two
// collections can point at one object where the behaviour needs it.
#include <memory>
#include <vector>
#include <QString>
#include "support/RuntimeError.h"

template <typename T>
class Collection {
public:
    using Ptr = std::shared_ptr<T>;

    int Count() const { return static_cast<int>(m_items.size()); }

    // Appends the item.
    void Add(Ptr item) { m_items.push_back(std::move(item)); }

    // Inserts the item before position `before` (1 to Count).
    void Add(Ptr item, int before)
    {
        check(before);
        m_items.insert(m_items.begin() + (before - 1), std::move(item));
    }

    void Remove(int pos)
    {
        check(pos);
        m_items.erase(m_items.begin() + (pos - 1));
    }

    const Ptr& Item(int pos) const
    {
        check(pos);
        return m_items[static_cast<size_t>(pos - 1)];
    }
    const Ptr& operator()(int pos) const { return Item(pos); }

    void Clear() { m_items.clear(); }

    auto begin() const { return m_items.begin(); }
    auto end() const { return m_items.end(); }

private:
    void check(int pos) const
    {
        if (pos < 1 || pos > Count())
            throw RangeError(QStringLiteral("Collection position %1 outside 1 to %2").arg(pos).arg(Count()));
    }
    std::vector<Ptr> m_items;
};
