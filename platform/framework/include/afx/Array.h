// CArray: elements in one stretch of memory, by index. Rules that all collections share are in afxtempl.h.
#pragma once

#include "InvalidArgException.h"
#include "MemoryException.h"
#include <climits>
#include <cstdint>
#include <memory>
#include <new>
#include <utility>

template <class TYPE, class ARG_TYPE = const TYPE&> class CArray : public CObject {
  public:
    CArray() = default;
    ~CArray() override { RemoveAll(); }

    // ---- Size. nGrowBy: elements by which the storage grows at least; 0 lets the array choose, -1 keeps the
    // present setting. A negative size throws.
    INT_PTR GetSize() const noexcept { return m_nSize; }
    INT_PTR GetCount() const noexcept { return m_nSize; }
    BOOL IsEmpty() const noexcept { return m_nSize == 0; }
    INT_PTR GetUpperBound() const noexcept { return m_nSize - 1; } // -1 when empty
    void SetSize(INT_PTR nNewSize, INT_PTR nGrowBy = -1) {
        if (nNewSize < 0)
            AfxThrowInvalidArgException();
        if (nGrowBy >= 0)
            m_nGrowBy = nGrowBy;
        if (nNewSize == 0)
            RemoveAll();
        else if (nNewSize < m_nSize)
            Shorten(nNewSize);
        else
            Lengthen(nNewSize);
    }
    void FreeExtra() { // gives storage beyond the elements back
        if (m_nMaxSize != m_nSize)
            Relocate(m_nSize);
    }
    void RemoveAll() noexcept { // the storage too
        Shorten(0);
        ::operator delete(m_pData, Alignment());
        m_pData = nullptr;
        m_nMaxSize = 0;
    }

    // ---- Elements.
    TYPE& ElementAt(INT_PTR nIndex) { return m_pData[Checked(nIndex)]; }
    const TYPE& ElementAt(INT_PTR nIndex) const { return m_pData[Checked(nIndex)]; }
    TYPE& GetAt(INT_PTR nIndex) { return ElementAt(nIndex); }
    const TYPE& GetAt(INT_PTR nIndex) const { return ElementAt(nIndex); }
    TYPE& operator[](INT_PTR nIndex) { return ElementAt(nIndex); }
    const TYPE& operator[](INT_PTR nIndex) const { return ElementAt(nIndex); }
    void SetAt(INT_PTR nIndex, ARG_TYPE newElement) { ElementAt(nIndex) = newElement; }
    // Null while the array holds no storage; valid until the next call that changes the size.
    TYPE* GetData() noexcept { return m_pData; }
    const TYPE* GetData() const noexcept { return m_pData; }
    TYPE* begin() noexcept { return m_pData; }
    TYPE* end() noexcept { return m_pData + m_nSize; }
    const TYPE* begin() const noexcept { return m_pData; }
    const TYPE* end() const noexcept { return m_pData + m_nSize; }

    // ---- Growing. Positions behind the end lengthen the array with default elements first.
    void SetAtGrow(INT_PTR nIndex, ARG_TYPE newElement) {
        CheckStart(nIndex);
        TYPE value(newElement);
        if (nIndex >= m_nSize)
            Lengthen(nIndex + 1);
        m_pData[nIndex] = std::move(value);
    }
    INT_PTR Add(ARG_TYPE newElement) { // the new element's index
        TYPE value(newElement);
        Reserve(m_nSize + 1);
        ::new (static_cast<void*>(m_pData + m_nSize)) TYPE(std::move(value));
        return m_nSize++;
    }
    INT_PTR Append(const CArray& src) { // the index of the first appended element
        const INT_PTR first = m_nSize;
        const INT_PTR count = src.m_nSize;
        Reserve(first + count);
        for (INT_PTR i = 0; i < count; ++i, ++m_nSize)
            ::new (static_cast<void*>(m_pData + m_nSize)) TYPE(src.m_pData[i]);
        return first;
    }
    void Copy(const CArray& src) {
        if (this == &src)
            return;
        Shorten(0);
        Append(src);
    }
    void InsertAt(INT_PTR nIndex, ARG_TYPE newElement, INT_PTR nCount = 1) {
        CheckStart(nIndex);
        if (nCount <= 0)
            AfxThrowInvalidArgException();
        const TYPE value(newElement);
        OpenGap(nIndex, nCount);
        for (INT_PTR i = 0; i < nCount; ++i)
            m_pData[nIndex + i] = value;
    }
    void InsertAt(INT_PTR nStartIndex, CArray* pNewArray) {
        CheckStart(nStartIndex);
        CArray source;
        source.Append(*Checked(pNewArray)); // the array may be inserted into itself
        if (source.m_nSize == 0)
            return;
        OpenGap(nStartIndex, source.m_nSize);
        for (INT_PTR i = 0; i < source.m_nSize; ++i)
            m_pData[nStartIndex + i] = std::move(source.m_pData[i]);
    }
    void RemoveAt(INT_PTR nIndex, INT_PTR nCount = 1) {
        if (nIndex < 0 || nCount < 0 || nIndex > m_nSize || nCount > m_nSize - nIndex)
            AfxThrowInvalidArgException();
        for (INT_PTR i = nIndex + nCount; i < m_nSize; ++i)
            m_pData[i - nCount] = std::move(m_pData[i]);
        Shorten(m_nSize - nCount);
    }

  private:
    static constexpr INT_PTR kSmallestGrowth = 4;
    static constexpr INT_PTR kLargestGrowth = 1024;
    static constexpr std::align_val_t Alignment() noexcept { return std::align_val_t(alignof(TYPE)); }

    INT_PTR Checked(INT_PTR nIndex) const {
        if (nIndex < 0 || nIndex >= m_nSize)
            AfxThrowInvalidArgException();
        return nIndex;
    }
    static const CArray* Checked(const CArray* pArray) {
        if (!pArray)
            AfxThrowInvalidArgException();
        return pArray;
    }
    static void CheckStart(INT_PTR nIndex) {
        if (nIndex < 0 || nIndex == INTPTR_MAX)
            AfxThrowInvalidArgException();
    }
    void Shorten(INT_PTR nNewSize) noexcept {
        while (m_nSize > nNewSize)
            std::destroy_at(m_pData + --m_nSize);
    }
    void Lengthen(INT_PTR nNewSize) {
        Reserve(nNewSize);
        for (; m_nSize < nNewSize; ++m_nSize)
            ::new (static_cast<void*>(m_pData + m_nSize)) TYPE();
    }
    void Reserve(INT_PTR nNeeded) {
        if (nNeeded <= m_nMaxSize)
            return;
        const INT_PTR half = m_nSize / 2;
        INT_PTR growth = m_nGrowBy;
        if (growth == 0)
            growth = half < kSmallestGrowth ? kSmallestGrowth : half;
        const INT_PTR grown = m_nMaxSize > INTPTR_MAX - growth ? INTPTR_MAX : m_nMaxSize + growth;
        Relocate(grown > nNeeded ? grown : nNeeded);
    }
    void Relocate(INT_PTR nCapacity) {
        if (nCapacity == 0) {
            RemoveAll();
            return;
        }
        if (nCapacity < 0 || static_cast<size_t>(nCapacity) > static_cast<size_t>(INTPTR_MAX) / sizeof(TYPE))
            AfxThrowMemoryException();
        const size_t bytes = static_cast<size_t>(nCapacity) * sizeof(TYPE);
        TYPE* const data = static_cast<TYPE*>(::operator new(bytes, Alignment(), std::nothrow));
        if (!data)
            AfxThrowMemoryException();
        std::uninitialized_move(m_pData, m_pData + m_nSize, data);
        std::destroy(m_pData, m_pData + m_nSize);
        ::operator delete(m_pData, Alignment());
        m_pData = data;
        m_nMaxSize = nCapacity;
    }
    // Makes room for nCount default elements before nIndex.
    void OpenGap(INT_PTR nIndex, INT_PTR nCount) {
        const INT_PTR oldSize = m_nSize;
        const INT_PTR first = nIndex > oldSize ? nIndex : oldSize;
        if (nCount > INTPTR_MAX - first)
            AfxThrowMemoryException();
        Lengthen(first + nCount);
        for (INT_PTR i = oldSize - 1; i >= nIndex; --i)
            m_pData[i + nCount] = std::exchange(m_pData[i], TYPE());
    }

    TYPE* m_pData = nullptr;
    INT_PTR m_nSize = 0;
    INT_PTR m_nMaxSize = 0;
    INT_PTR m_nGrowBy = 0;
};
