// The temporary objects of one kind (GDI objects, device contexts, menus, image lists) on one thread.
#pragma once

#include <memory>
#include <unordered_map>
#include <utility>
#include <vector>

// They borrow: Forget(object) takes the handle out of an object before it is deleted. Each has a serial
// number, so that a nested loop removes only what was made since it began.
template <class OBJECT, class HANDLE_TYPE> class TemporaryHandles {
  public:
    typedef unsigned long long Serial;

    TemporaryHandles() = default;
    ~TemporaryHandles() { RemoveSince(0); }
    TemporaryHandles(const TemporaryHandles&) = delete;
    TemporaryHandles& operator=(const TemporaryHandles&) = delete;

    OBJECT* Find(HANDLE_TYPE handle) const {
        const auto found = m_objects.find(handle);
        return found != m_objects.end() ? found->second.object.get() : nullptr;
    }
    OBJECT* Add(HANDLE_TYPE handle, std::unique_ptr<OBJECT> object, Serial serial) {
        return (m_objects[handle] = {std::move(object), serial}).object.get();
    }
    // The handle no longer stands for its temporary object, which lives on with the others because somebody
    // may hold it.
    void Retire(HANDLE_TYPE handle) {
        const auto found = m_objects.find(handle);
        if (found == m_objects.end())
            return;
        m_retired.push_back(std::move(found->second));
        m_objects.erase(found);
    }
    void RemoveSince(Serial serial) {
        const auto isDropped = [serial](const Temporary& temporary) {
            if (temporary.serial < serial)
                return false;
            Forget(*temporary.object);
            return true;
        };
        std::erase_if(m_retired, isDropped);
        std::erase_if(m_objects, [&isDropped](const auto& entry) { return isDropped(entry.second); });
    }

  private:
    struct Temporary {
        std::unique_ptr<OBJECT> object;
        Serial serial = 0;
    };
    std::unordered_map<HANDLE_TYPE, Temporary> m_objects;
    std::vector<Temporary> m_retired;
};
