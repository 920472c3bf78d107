// What takes long to determine, by what determines it: kept until the library is unloaded. Any thread.
#pragma once

#include "common/never_destroyed.h"

#include <map>
#include <memory>
#include <mutex>

template <typename Key, typename Value>
class KnownValues {
public:
    // make returns the value of the key, and is called with the table locked.
    template <typename Make>
    [[nodiscard]] static std::shared_ptr<const Value> find(const Key &key, Make make) {
        Table &known = table();
        const std::lock_guard lock(known.mutex);
        auto &value = known.values[key];
        if (!value) value = make();
        return value;
    }

private:
    struct Table {
        std::mutex mutex;
        std::map<Key, std::shared_ptr<const Value>> values; // guarded by mutex
    };

    // Contexts that still exist when the process ends keep their values.
    struct Forgetting {
        ~Forgetting() {
            Table &known = neverDestroyed<Table>();
            const std::lock_guard lock(known.mutex);
            known.values.clear();
        }
    };

    static Table &table() {
        [[maybe_unused]] static const Forgetting forgetting;
        return neverDestroyed<Table>();
    }
};
