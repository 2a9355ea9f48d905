// CList: a doubly linked list. A POSITION stays valid until its own element is removed. Rules that all
// collections share are in afxtempl.h.
#pragma once

#include "HashKey.h"
#include "InvalidArgException.h"
#include <utility>

template <class TYPE, class ARG_TYPE = const TYPE&> class CList : public CObject {
  public:
    explicit CList(INT_PTR = 10) {} // the block size of the documented interface has no effect here
    ~CList() override { RemoveAll(); }

    INT_PTR GetCount() const noexcept { return m_nCount; }
    INT_PTR GetSize() const noexcept { return m_nCount; }
    BOOL IsEmpty() const noexcept { return m_nCount == 0; }

    // ---- Ends. An empty list throws.
    TYPE& GetHead() { return Checked(m_pHead)->value; }
    const TYPE& GetHead() const { return Checked(m_pHead)->value; }
    TYPE& GetTail() { return Checked(m_pTail)->value; }
    const TYPE& GetTail() const { return Checked(m_pTail)->value; }
    TYPE RemoveHead() { return Take(Checked(m_pHead)); }
    TYPE RemoveTail() { return Take(Checked(m_pTail)); }
    POSITION AddHead(ARG_TYPE newElement) { return Link(nullptr, m_pHead, newElement); }
    POSITION AddTail(ARG_TYPE newElement) { return Link(m_pTail, nullptr, newElement); }
    void RemoveAll() noexcept {
        while (m_pHead)
            Unlink(m_pHead);
    }

    // ---- Walking: rPosition moves on, to NULL behind the last element.
    POSITION GetHeadPosition() const noexcept { return ToPosition(m_pHead); }
    POSITION GetTailPosition() const noexcept { return ToPosition(m_pTail); }
    TYPE& GetNext(POSITION& rPosition) {
        Node* const node = Checked(ToNode(rPosition));
        rPosition = ToPosition(node->next);
        return node->value;
    }
    const TYPE& GetNext(POSITION& rPosition) const { return const_cast<CList*>(this)->GetNext(rPosition); }
    TYPE& GetPrev(POSITION& rPosition) {
        Node* const node = Checked(ToNode(rPosition));
        rPosition = ToPosition(node->previous);
        return node->value;
    }
    const TYPE& GetPrev(POSITION& rPosition) const { return const_cast<CList*>(this)->GetPrev(rPosition); }

    // ---- At a position. NULL throws, except that inserting at NULL adds at the head (before) or tail
    // (after).
    TYPE& GetAt(POSITION position) { return Checked(ToNode(position))->value; }
    const TYPE& GetAt(POSITION position) const { return Checked(ToNode(position))->value; }
    void SetAt(POSITION position, ARG_TYPE newElement) { GetAt(position) = newElement; }
    void RemoveAt(POSITION position) { Unlink(Checked(ToNode(position))); }
    POSITION InsertBefore(POSITION position, ARG_TYPE newElement) {
        Node* const node = position ? ToNode(position) : m_pHead;
        return Link(node ? node->previous : nullptr, node, newElement);
    }
    POSITION InsertAfter(POSITION position, ARG_TYPE newElement) {
        Node* const node = position ? ToNode(position) : m_pTail;
        return Link(node, node ? node->next : nullptr, newElement);
    }

    // ---- Searching: NULL when there is none. Find starts behind startAfter; NULL starts at the head.
    POSITION Find(ARG_TYPE searchValue, POSITION startAfter = nullptr) const {
        for (Node* node = startAfter ? ToNode(startAfter)->next : m_pHead; node; node = node->next)
            if (CompareElements(&node->value, &searchValue))
                return ToPosition(node);
        return nullptr;
    }
    POSITION FindIndex(INT_PTR nIndex) const noexcept {
        if (nIndex < 0 || nIndex >= m_nCount)
            return nullptr;
        Node* node = m_pHead;
        while (nIndex-- > 0)
            node = node->next;
        return ToPosition(node);
    }

  private:
    struct Node {
        Node* previous;
        Node* next;
        TYPE value;
    };
    static Node* ToNode(POSITION position) noexcept { return reinterpret_cast<Node*>(position); }
    static POSITION ToPosition(Node* node) noexcept { return reinterpret_cast<POSITION>(node); }
    static Node* Checked(Node* node) {
        if (!node)
            AfxThrowInvalidArgException();
        return node;
    }
    POSITION Link(Node* previous, Node* next, ARG_TYPE newElement) {
        Node* const node = new Node{previous, next, newElement};
        (previous ? previous->next : m_pHead) = node;
        (next ? next->previous : m_pTail) = node;
        ++m_nCount;
        return ToPosition(node);
    }
    void Unlink(Node* node) noexcept {
        (node->previous ? node->previous->next : m_pHead) = node->next;
        (node->next ? node->next->previous : m_pTail) = node->previous;
        --m_nCount;
        delete node;
    }
    TYPE Take(Node* node) {
        TYPE value(std::move(node->value));
        Unlink(node);
        return value;
    }

    Node* m_pHead = nullptr;
    Node* m_pTail = nullptr;
    INT_PTR m_nCount = 0;
};
