// COrxArray: the untyped base of the hand-written array classes (points, vertices).
#ifndef ORX_FOUNDATION_ARRAY_H
#define ORX_FOUNDATION_ARRAY_H

#include "orx/foundation/obj.h"

// Keeps only the bookkeeping: capacity (physical length) and logical length. A derived class
// owns its element block and implements setLength, calling the base body to learn the new
// capacity.
class ORX_API COrxArray : public COrxObj {
public:
    COrxArray();
    COrxArray(COrxArray const& other);
    COrxArray& operator=(COrxArray const& other);
    ~COrxArray() override;

    int len() const { return m_length; }
    bool isEmpty() const { return m_length == 0; }
    int capacity() const { return m_capacity; }

    // Sets the logical length to 0; the capacity is kept.
    virtual void clear();

    // Grows the storage through setLength when n exceeds the capacity, then sets the logical
    // length to n (0 when n is negative). Returns the new logical length.
    virtual int setLogicalLength(int n);

protected:
    // Base body: logical length := max(n, 0); returns 0 when that fits the capacity, else
    // raises the capacity by repeated max(8, 2 * capacity) until it fits and returns it.
    // Pure, so that every derived class reallocates its own block.
    virtual int setLength(int n) = 0;

    // The capacity the base body grows to for n elements: repeated max(8, 2 * capacity)
    // from the given capacity until n fits. Lets a derived class allocate its new block
    // before the bookkeeping changes (and keep everything as it was when that fails).
    static int nextCapacity(int capacity, int n);

private:
    int m_capacity;
    int m_length;
};

#endif  // ORX_FOUNDATION_ARRAY_H
