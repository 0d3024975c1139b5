// A set of lazily built, type-keyed objects: the tables a subsystem fills once
// and keeps for the run (name tables, the Umm al-Qura table, built lunar years).
// Each owner reaches its own table through the context rather than a global.
#pragma once

#include <functional>
#include <memory>
#include <typeindex>
#include <unordered_map>

namespace mc {

class ModuleSet {
 public:
  // The object of type T, built by `make` on first use.
  template <class T, class Make>
  T& Get(Make&& make) {
    auto it = items_.find(typeid(T));
    if (it == items_.end()) {
      std::shared_ptr<void> p = std::shared_ptr<T>(make());
      it = items_.emplace(typeid(T), std::move(p)).first;
    }
    return *static_cast<T*>(it->second.get());
  }
  template <class T>
  T* Find() const {
    auto it = items_.find(typeid(T));
    return it == items_.end() ? nullptr : static_cast<T*>(it->second.get());
  }
  template <class T>
  void Reset() {
    items_.erase(typeid(T));
  }

 private:
  std::unordered_map<std::type_index, std::shared_ptr<void>> items_;
};

}  // namespace mc
