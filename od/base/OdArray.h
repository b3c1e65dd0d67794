#pragma once

#include <vector>

#include "od/base/OdError.h"

/// A growing array of values. Every access is checked and throws `OdError_InvalidIndex`.
template <typename T>
class OdArray {
 public:
  using size_type = unsigned;
  using iterator = typename std::vector<T>::iterator;
  using const_iterator = typename std::vector<T>::const_iterator;

  OdArray() = default;
  OdArray(std::initializer_list<T> values) : m_values(values) {}

  size_type size() const { return static_cast<size_type>(m_values.size()); }
  size_type length() const { return size(); }
  bool isEmpty() const { return m_values.empty(); }
  bool empty() const { return m_values.empty(); }

  T& operator[](size_type index) { return m_values[checked(index)]; }
  const T& operator[](size_type index) const { return m_values[checked(index)]; }
  T& at(size_type index) { return m_values[checked(index)]; }
  const T& at(size_type index) const { return m_values[checked(index)]; }
  T& first() { return (*this)[0]; }
  const T& first() const { return (*this)[0]; }
  T& last() { return (*this)[size() - 1]; }
  const T& last() const { return (*this)[size() - 1]; }

  void append(T value) { m_values.push_back(std::move(value)); }
  void push_back(T value) { m_values.push_back(std::move(value)); }
  void insertAt(size_type index, T value) {
    if (index > size()) throw OdError_InvalidIndex();
    m_values.insert(m_values.begin() + index, std::move(value));
  }
  void removeAt(size_type index) { m_values.erase(m_values.begin() + checked(index)); }
  void removeLast() { removeAt(size() - 1); }
  void resize(size_type count) { m_values.resize(count); }
  void reserve(size_type count) { m_values.reserve(count); }
  void clear() { m_values.clear(); }

  iterator begin() { return m_values.begin(); }
  iterator end() { return m_values.end(); }
  const_iterator begin() const { return m_values.begin(); }
  const_iterator end() const { return m_values.end(); }

  friend bool operator==(const OdArray& a, const OdArray& b) { return a.m_values == b.m_values; }

 private:
  size_type checked(size_type index) const {
    if (index >= size()) throw OdError_InvalidIndex();
    return index;
  }

  std::vector<T> m_values;
};
