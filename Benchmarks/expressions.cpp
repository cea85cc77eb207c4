// Benchmark of a condition of three clauses over 200 variables, which evaluates all clauses. The references
// are the same condition compiled in Lua over a table of the same texts, and only the lookups of the three
// variables.
#include "Median.h"

#include <expressions/Expression.h>

#include <fmt/format.h>
#include <lua.hpp>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

#include <time.h>

namespace {

using namespace velmar;

constexpr int rounds = 201;
constexpr int calls = 10'000;
constexpr const char *line = R"(DEVICE_NAME == "lab" && (ANSWER >= 3 || FLAG))";

Variables makeVariables() {
    Variables variables{{"DEVICE_NAME", "lab"}, {"ANSWER", "2"}, {"FLAG", "true"}};
    for (int number = 0; variables.size() < 200; ++number) {
        variables.emplace(fmt::format("VARIABLE_{}", number), fmt::format("value {}", number));
    }
    return variables;
}

// A condition as a compiled Lua function that closes over the table of variables.
class LuaCondition {
public:
    LuaCondition(const Variables &variables, const char *condition) : state_(luaL_newstate(), lua_close) {
        luaL_openlibs(state_.get());
        lua_createtable(state_.get(), 0, static_cast<int>(variables.size()));
        for (const auto &[name, value] : variables) {
            lua_pushlstring(state_.get(), value.data(), value.size());
            lua_setfield(state_.get(), -2, name.c_str());
        }
        // For the condition without tonumber().
        lua_pushinteger(state_.get(), 2);
        lua_setfield(state_.get(), -2, "ANSWER_NUMBER");
        lua_setglobal(state_.get(), "variables");
        const std::string chunk =
            fmt::format("local v, tonumber = variables, tonumber return function() return {} end", condition);
        if (luaL_dostring(state_.get(), chunk.c_str()) != LUA_OK) {
            std::abort();
        }
    }

    bool evaluate() {
        lua_pushvalue(state_.get(), -1);
        if (lua_pcall(state_.get(), 0, 1, 0) != LUA_OK) {
            std::abort();
        }
        const bool result = lua_toboolean(state_.get(), -1) != 0;
        lua_pop(state_.get(), 1);
        return result;
    }

private:
    std::unique_ptr<lua_State, decltype(&lua_close)> state_;
};

// Returns the processor time of this thread in nanoseconds, which excludes other load of the machine.
double processorTime() {
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e9 + static_cast<double>(time.tv_nsec);
}

template <class Function>
double nanoseconds(const Function &function) {
    const double start = processorTime();
    for (int call = 0; call < calls; ++call) {
        if (!function()) {
            std::abort();
        }
    }
    return (processorTime() - start) / calls;
}

// Prints the medians of rounds that measure both functions alternately.
template <class Ours, class Reference>
void compare(const char *name, const Ours &ours, const Reference &reference, const char *goal) {
    std::vector<double> mine;
    std::vector<double> theirs;
    for (int round = 0; round < rounds; ++round) {
        mine.push_back(nanoseconds(ours));
        theirs.push_back(nanoseconds(reference));
    }
    fmt::print("{} ours={:.1f}ns reference={:.1f}ns ratio={:.2f} goal={}\n", name, median(mine),
               median(theirs), median(mine) / median(theirs), goal);
}

} // namespace

int main() {
    const Variables variables = makeVariables();
    const expressions::Expression expression(line);
    const auto ours = [&] { return expression.evaluate(variables); };

    LuaCondition texts(variables, "v.DEVICE_NAME == 'lab' and (tonumber(v.ANSWER) >= 3 or v.FLAG == 'true')");
    compare(
        "expression-lua", ours, [&] { return texts.evaluate(); }, "0.5");
    // Lua without the conversion of a text to a number.
    LuaCondition typed(variables, "v.DEVICE_NAME == 'lab' and (v.ANSWER_NUMBER >= 3 or v.FLAG == 'true')");
    compare(
        "expression-lua-typed", ours, [&] { return typed.evaluate(); }, "none");

    const std::array<std::string, 3> names = {"DEVICE_NAME", "ANSWER", "FLAG"};
    compare(
        "expression-look-ups", ours,
        [&] {
            std::size_t found = 0;
            for (const std::string &name : names) {
                found += variables.find(std::string_view(name))->second.size();
            }
            return found == 8;
        },
        "2.5");
}
