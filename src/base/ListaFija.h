#pragma once
// A short list held in place, so that tables of constants can hold lists of any length up to
// a bound and still be constants. More items than it holds stop the build when the list is a
// constant, and throw otherwise.

#include <cstddef>
#include <initializer_list>
#include <stdexcept>

namespace vardena {

template <typename T, size_t N>
class ListaFija {
public:
    constexpr ListaFija() = default;
    constexpr ListaFija(std::initializer_list<T> items)
    {
        for (const T& x : items)
            push_back(x);
    }
    constexpr void push_back(const T& x)
    {
        if (n_ == N)
            throw std::length_error("ListaFija: more items than it holds");
        v_[n_++] = x;
    }
    constexpr size_t size() const { return n_; }
    constexpr bool empty() const { return n_ == 0; }
    constexpr const T* begin() const { return v_; }
    constexpr const T* end() const { return v_ + n_; }
    constexpr const T& operator[](size_t i) const { return v_[i]; }

private:
    T v_[N] = {};
    size_t n_ = 0;
};

// Two lists one after the other.
template <typename T, size_t N>
constexpr ListaFija<T, N> operator+(ListaFija<T, N> a, const ListaFija<T, N>& b)
{
    for (const T& x : b)
        a.push_back(x);
    return a;
}

}  // namespace vardena
