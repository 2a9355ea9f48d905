// CMap: key to value by a hash table. Walking order is not defined. Rules that all collections share are in
// afxtempl.h.
#pragma once

#include "HashKey.h"
#include "InvalidArgException.h"
#include <memory>
#include <utility>

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE> class CMap : public CObject {
  public:
    struct CPair {
        const KEY key;
        VALUE value;
    };

    explicit CMap(INT_PTR = 10) {} // the block size of the documented interface has no effect here
    ~CMap() override { RemoveAll(); }

    INT_PTR GetCount() const noexcept { return m_nCount; }
    INT_PTR GetSize() const noexcept { return m_nCount; }
    BOOL IsEmpty() const noexcept { return m_nCount == 0; }
    UINT GetHashTableSize() const noexcept { return m_nTableSize; }
    // The number of hash classes, a prime number for best results; the map must be empty, 0 is refused.
    void InitHashTable(UINT hashSize, BOOL bAllocNow = TRUE) {
        if (m_nCount != 0 || hashSize == 0)
            AfxThrowInvalidArgException();
        m_table.reset();
        m_nTableSize = hashSize;
        if (bAllocNow)
            EnsureTable();
    }

    // FALSE and rValue unchanged when the key is missing.
    BOOL Lookup(ARG_KEY key, VALUE& rValue) const {
        const Node* const node = FindNode(key);
        if (!node)
            return FALSE;
        rValue = node->pair.value;
        return TRUE;
    }
    // Null when the key is missing; valid until the key is removed.
    CPair* PLookup(ARG_KEY key) {
        Node* const node = FindNode(key);
        return node ? &node->pair : nullptr;
    }
    const CPair* PLookup(ARG_KEY key) const { return const_cast<CMap*>(this)->PLookup(key); }
    // The value of a key, which is entered with a default value when missing.
    VALUE& operator[](ARG_KEY key) {
        if (Node* const node = FindNode(key))
            return node->pair.value;
        EnsureTable();
        Node*& bucket = m_table[Bucket(key)];
        bucket = new Node{bucket, CPair{key, VALUE()}};
        ++m_nCount;
        return bucket->pair.value;
    }
    void SetAt(ARG_KEY key, ARG_VALUE newValue) {
        VALUE value(newValue);
        (*this)[key] = std::move(value);
    }
    BOOL RemoveKey(ARG_KEY key) { // FALSE when the key is missing
        if (!m_table)
            return FALSE;
        for (Node** link = &m_table[Bucket(key)]; *link; link = &(*link)->next) {
            if (!CompareElements(&(*link)->pair.key, &key))
                continue;
            Node* const node = *link;
            *link = node->next;
            --m_nCount;
            delete node;
            return TRUE;
        }
        return FALSE;
    }
    void RemoveAll() noexcept {
        for (UINT bucket = 0; m_table && bucket < m_nTableSize; ++bucket) {
            while (Node* const node = m_table[bucket]) {
                m_table[bucket] = node->next;
                delete node;
            }
        }
        m_table.reset();
        m_nCount = 0;
    }

    // ---- Walking. NULL when there is no further pair. The element just visited may be removed.
    POSITION GetStartPosition() const noexcept { return reinterpret_cast<POSITION>(FirstFrom(0)); }
    void GetNextAssoc(POSITION& rNextPosition, KEY& rKey, VALUE& rValue) const {
        const CPair* const pair = PGetNextAssoc(rNextPosition);
        rKey = pair->key;
        rValue = pair->value;
    }
    const CPair* PGetFirstAssoc() const noexcept {
        const Node* const node = FirstFrom(0);
        return node ? &node->pair : nullptr;
    }
    const CPair* PGetNextAssoc(POSITION& rNextPosition) const {
        Node* const node = Checked(reinterpret_cast<Node*>(rNextPosition));
        Node* const next = node->next ? node->next : FirstFrom(Bucket(node->pair.key) + 1);
        rNextPosition = reinterpret_cast<POSITION>(next);
        return &node->pair;
    }

  private:
    struct Node {
        Node* next;
        CPair pair;
    };
    static constexpr UINT kDefaultTableSize = 17;

    static Node* Checked(Node* node) {
        if (!node)
            AfxThrowInvalidArgException();
        return node;
    }
    UINT Bucket(ARG_KEY key) const { return HashKey<ARG_KEY>(key) % m_nTableSize; }
    void EnsureTable() {
        if (!m_table)
            m_table.reset(new Node* [m_nTableSize] {});
    }
    Node* FindNode(ARG_KEY key) const {
        Node* node = m_table ? m_table[Bucket(key)] : nullptr;
        while (node && !CompareElements(&node->pair.key, &key))
            node = node->next;
        return node;
    }
    Node* FirstFrom(UINT bucket) const noexcept {
        for (; m_table && bucket < m_nTableSize; ++bucket)
            if (m_table[bucket])
                return m_table[bucket];
        return nullptr;
    }

    std::unique_ptr<Node*[]> m_table;
    UINT m_nTableSize = kDefaultTableSize;
    INT_PTR m_nCount = 0;
};
