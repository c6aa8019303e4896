#pragma once
// The system's vector: a std::vector whose index operator checks its argument. A bad
// index is a defect that ends the run: it is written to both logs, the main window is
// destroyed, and the access carries on with element 0 so that nothing reads or writes
// outside the vector on the way out.

#include <cstddef>
#include <vector>

// Reports a bad index: "err V[index] ( size , element size )" to the switchable log and
// the report log, then destroys the main window.
void ReportBadVectorIndex(long long index, std::size_t size, std::size_t elementSize);

template <class T>
class VECTOR_CLASS : public std::vector<T> {
 public:
  using std::vector<T>::vector;

  T& operator[](std::size_t index) {
    if (index < this->size()) return std::vector<T>::operator[](index);
    return OutOfRange(index);
  }
  const T& operator[](std::size_t index) const {
    if (index < this->size()) return std::vector<T>::operator[](index);
    return const_cast<VECTOR_CLASS*>(this)->OutOfRange(index);
  }

  int Count() const { return static_cast<int>(this->size()); }

 private:
  T& OutOfRange(std::size_t index) {
    ReportBadVectorIndex(static_cast<long long>(static_cast<std::ptrdiff_t>(index)), this->size(), sizeof(T));
    if (!this->empty()) return std::vector<T>::operator[](0);
    // An empty vector has no element 0: hand out a fresh default element instead, so
    // that the run can still end in order.
    static thread_local T stand_in{};
    stand_in = T{};
    return stand_in;
  }
};
