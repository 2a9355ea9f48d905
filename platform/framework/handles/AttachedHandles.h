// The objects that are attached to platform handles (GDI objects, device contexts, menus, image lists).
//
// They are found on the thread that attached them. They stand in one table of the process, so that an object
// that is destroyed on another thread leaves no stale entry behind.
#pragma once

#include <windows.h>

#include <unordered_map>
#include <utility>

// Guard for the process's tables: held for the length of a scope.
class TableLock {
  public:
    explicit TableLock(SRWLOCK& lock) : m_lock(lock) { ::AcquireSRWLockExclusive(&m_lock); }
    ~TableLock() { ::ReleaseSRWLockExclusive(&m_lock); }
    TableLock(const TableLock&) = delete;
    TableLock& operator=(const TableLock&) = delete;

  private:
    SRWLOCK& m_lock;
};

template <class OBJECT, class HANDLE_TYPE> class AttachedHandles {
  public:
    AttachedHandles() { s_isAlive = true; }
    ~AttachedHandles() { s_isAlive = false; }
    AttachedHandles(const AttachedHandles&) = delete;
    AttachedHandles& operator=(const AttachedHandles&) = delete;

    // False when the handle has another object on this thread already.
    static bool Add(HANDLE_TYPE handle, OBJECT* object) {
        AttachedHandles* const table = Table();
        if (!table)
            return true; // the process ends: nobody will look the handle up
        const TableLock lock(table->m_lock);
        return table->m_objects.try_emplace(Key{handle, ::GetCurrentThreadId()}, object).second;
    }
    static OBJECT* Find(HANDLE_TYPE handle) {
        AttachedHandles* const table = Table();
        if (!table)
            return nullptr;
        const TableLock lock(table->m_lock);
        const auto found = table->m_objects.find(Key{handle, ::GetCurrentThreadId()});
        return found != table->m_objects.end() ? found->second : nullptr;
    }
    // False when this object was not attached to the handle.
    static bool Remove(HANDLE_TYPE handle, const OBJECT* object) {
        AttachedHandles* const table = Table();
        if (!table)
            return true;
        const TableLock lock(table->m_lock);
        auto& objects = table->m_objects;
        auto found = objects.find(Key{handle, ::GetCurrentThreadId()});
        if (found == objects.end() || found->second != object)
            for (found = objects.begin(); found != objects.end() && found->second != object;)
                ++found;
        if (found == objects.end())
            return false;
        objects.erase(found);
        return true;
    }

  private:
    struct Key {
        HANDLE_TYPE handle;
        DWORD thread;
        bool operator==(const Key& other) const { return handle == other.handle && thread == other.thread; }
    };
    struct KeyHash {
        size_t operator()(const Key& key) const {
            constexpr size_t kSpread = 0x9E3779B97F4A7C15u;
            return (reinterpret_cast<size_t>(key.handle) ^ (static_cast<size_t>(key.thread) << 32)) * kSpread;
        }
    };
    static AttachedHandles* Table() {
        static AttachedHandles table;
        return s_isAlive ? &table : nullptr;
    }
    static inline constinit bool s_isAlive = false;

    SRWLOCK m_lock = SRWLOCK_INIT;
    std::unordered_map<Key, OBJECT*, KeyHash> m_objects;
};
