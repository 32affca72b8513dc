#pragma once
// Fixed-size arrays with any lower and upper bound, read and written with (i)
// or (i, j). An index outside the bounds raises RangeError.
#include <array>
#include <QString>
#include "support/RuntimeError.h"

namespace checked_detail {
inline void checkIndex(int i, int lo, int hi)
{
    if (i < lo || i > hi)
        throw RangeError(QStringLiteral("Index %1 outside %2 to %3").arg(i).arg(lo).arg(hi));
}
}

template <typename T, int Lo, int Hi>
class CheckedArray {
    static_assert(Hi >= Lo);
public:
    static constexpr int Lower = Lo;
    static constexpr int Upper = Hi;
    static constexpr int Size = Hi - Lo + 1;

    CheckedArray() : m_data{} {}

    T& operator()(int i)
    {
        checked_detail::checkIndex(i, Lo, Hi);
        return m_data[static_cast<size_t>(i - Lo)];
    }
    const T& operator()(int i) const
    {
        checked_detail::checkIndex(i, Lo, Hi);
        return m_data[static_cast<size_t>(i - Lo)];
    }
    void Fill(const T& value) { m_data.fill(value); }

    auto begin() { return m_data.begin(); }
    auto end() { return m_data.end(); }
    auto begin() const { return m_data.begin(); }
    auto end() const { return m_data.end(); }

private:
    std::array<T, Size> m_data;
};

template <typename T, int Lo1, int Hi1, int Lo2, int Hi2>
class CheckedArray2 {
    static_assert(Hi1 >= Lo1 && Hi2 >= Lo2);
public:
    static constexpr int Rows = Hi1 - Lo1 + 1;
    static constexpr int Cols = Hi2 - Lo2 + 1;

    CheckedArray2() : m_data{} {}

    T& operator()(int i, int j)
    {
        checked_detail::checkIndex(i, Lo1, Hi1);
        checked_detail::checkIndex(j, Lo2, Hi2);
        return m_data[static_cast<size_t>((i - Lo1) * Cols + (j - Lo2))];
    }
    const T& operator()(int i, int j) const
    {
        checked_detail::checkIndex(i, Lo1, Hi1);
        checked_detail::checkIndex(j, Lo2, Hi2);
        return m_data[static_cast<size_t>((i - Lo1) * Cols + (j - Lo2))];
    }
    void Fill(const T& value) { m_data.fill(value); }

private:
    std::array<T, Rows * Cols> m_data;
};
