#pragma once
// A zero-filled array from calloc. For a large array the system hands over fresh zero pages, so nothing
// is written until first use and the threads that first touch a page pay for it, not the allocating one.

#include <cstdlib>
#include <memory>
#include <new>
#include <span>

namespace kelvane {

template <class T>
class ZeroArray {
public:
    // Drops what was held; a count of 0 holds nothing. Throws std::bad_alloc.
    void assign_zeros(std::size_t count) {
        items.reset();
        size_ = 0;
        if (count == 0) return;
        items.reset(static_cast<T*>(std::calloc(count, sizeof(T))));
        if (!items) throw std::bad_alloc();
        size_ = count;
    }

    std::span<T> span() { return {items.get(), size_}; }
    std::span<const T> span() const { return {items.get(), size_}; }
    std::size_t size() const { return size_; }
    bool empty() const { return size_ == 0; }
    T& operator[](std::size_t i) { return items[i]; }
    const T& operator[](std::size_t i) const { return items[i]; }

private:
    struct Free {
        void operator()(T* pointer) const { std::free(pointer); }
    };
    std::unique_ptr<T[], Free> items;
    std::size_t size_ = 0;
};

}  // namespace kelvane
