#include <Configuration/Plugin.h>
#include <Configuration/PopulatableValue.h>

#include <algorithm>
#include <atomic>
#include <mutex>
#include <vector>

namespace velmar {

namespace {

using PluginList = std::vector<std::shared_ptr<const Plugin>>;

struct State {
    std::mutex mutex;
    std::shared_ptr<const PluginList> plugins = std::make_shared<const PluginList>();
    std::atomic<bool> isEmpty{true}; // Lets reads skip the lock while there are no plugins.

    template <class Change>
    void change(Change change) {
        const std::scoped_lock lock(mutex);
        auto list = std::make_shared<PluginList>(*plugins);
        change(*list);
        isEmpty = list->empty();
        plugins = std::move(list);
    }
};

State &state() {
    // Never destroyed: other threads may still read while the process ends.
    static State &instance = *new State;
    return instance;
}

} // namespace

Plugins::Registration Plugins::registerPlugin(std::shared_ptr<const Plugin> plugin) {
    state().change([&](PluginList &list) { list.push_back(plugin); });
    return Registration(std::move(plugin));
}

Plugins::Registration::~Registration() {
    if (plugin_) {
        state().change([this](PluginList &list) { std::erase(list, plugin_); });
    }
}

void applyPlugins(std::span<std::string *const> texts) {
    if (texts.empty() || state().isEmpty) {
        return;
    }
    std::shared_ptr<const PluginList> plugins;
    {
        const std::scoped_lock lock(state().mutex);
        plugins = state().plugins;
    }
    for (const auto &plugin : *plugins) {
        plugin->filter(texts);
    }
}

} // namespace velmar
