#pragma once
// AcArray: the host's growable array, a thin layer over std::vector with the host's names.

#include <algorithm>
#include <vector>

template <class T>
class AcArray {
public:
    AcArray() = default;
    AcArray(std::initializer_list<T> items) : m_items(items) {}

    int length() const { return static_cast<int>(m_items.size()); }
    int logicalLength() const { return length(); }
    bool isEmpty() const { return m_items.empty(); }

    T& operator[](int i) { return m_items[static_cast<std::size_t>(i)]; }
    const T& operator[](int i) const { return m_items[static_cast<std::size_t>(i)]; }
    T& at(int i) { return m_items.at(static_cast<std::size_t>(i)); }
    const T& at(int i) const { return m_items.at(static_cast<std::size_t>(i)); }
    T& first() { return m_items.front(); }
    T& last() { return m_items.back(); }
    const T& first() const { return m_items.front(); }
    const T& last() const { return m_items.back(); }

    int append(const T& value) { m_items.push_back(value); return length() - 1; }
    AcArray& append(const AcArray& other) {
        m_items.insert(m_items.end(), other.m_items.begin(), other.m_items.end());
        return *this;
    }
    AcArray& insertAt(int index, const T& value) {
        m_items.insert(m_items.begin() + index, value);
        return *this;
    }
    AcArray& removeAt(int index) { m_items.erase(m_items.begin() + index); return *this; }
    AcArray& removeLast() { m_items.pop_back(); return *this; }
    bool remove(const T& value) {
        auto it = std::find(m_items.begin(), m_items.end(), value);
        if (it == m_items.end()) return false;
        m_items.erase(it);
        return true;
    }
    AcArray& removeAll() { m_items.clear(); return *this; }
    AcArray& setLogicalLength(int n) { m_items.resize(static_cast<std::size_t>(n)); return *this; }

    bool contains(const T& value) const { return find(value) >= 0; }
    int find(const T& value) const {
        auto it = std::find(m_items.begin(), m_items.end(), value);
        return it == m_items.end() ? -1 : static_cast<int>(it - m_items.begin());
    }
    bool find(const T& value, int& index) const { index = find(value); return index >= 0; }

    bool operator==(const AcArray& other) const { return m_items == other.m_items; }

    // Range-for and std algorithms.
    auto begin() { return m_items.begin(); }
    auto end() { return m_items.end(); }
    auto begin() const { return m_items.begin(); }
    auto end() const { return m_items.end(); }

private:
    std::vector<T> m_items;
};

class AcDbObjectId;
using AcDbObjectIdArray = AcArray<AcDbObjectId>;
using AcDbVoidPtrArray = AcArray<void*>;
