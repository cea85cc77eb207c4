#include <Checks/UnusedNames.h>

#include <Configuration/Configuration.h>
#include <Configuration/DecodingNotes.h>
#include <Configuration/Populatable.h>
#include <Foundation/PropertyListValue.h>

#include <boost/unordered/unordered_flat_set.hpp>
#include <fmt/format.h>

#include <algorithm>
#include <string_view>
#include <utility>

namespace velmar {

namespace {

class NamesInUse final : private ValueVisitor {
public:
    explicit NamesInUse(const CheckedFile &file) {
        const VariableNames &declared = file.configuration.declaredVariables;
        names_.insert(declared.begin(), declared.end());
        for (const auto &record : file.notes.variables.records) {
            names_.insert(record.variables.begin(), record.variables.end());
        }
        file.configuration.visitValues(file.root, *this);
        for (const auto &note : file.notes.notes) {
            if (note.kind == DecodingNotes::Kind::unknownKey) {
                unknownKeys_.insert(note.offset);
            }
        }
        collect(file.root, true);
    }

    [[nodiscard]] bool contains(std::string_view name) const { return names_.contains(name); }

private:
    void visit(const VisitedValue &value) override {
        if (const auto *const update = value.as<ActionTrigger::VariableUpdate>()) {
            names_.insert(update->variable);
        }
    }

    void collect(const PropertyListValue &value, bool isKnown) {
        if (const auto text = value.string()) {
            addReferences(*text);
            if (!isKnown) {
                addBareNames(*text);
            }
        }
        for (const PropertyListValue &element : value.elements()) {
            collect(element, isKnown);
        }
        for (const auto &entry : value.entries()) {
            if (!isKnown) {
                addBareNames(entry.key.text());
            }
            collect(entry.value, isKnown && !unknownKeys_.contains(entry.keyOffset));
        }
    }

    void addReferences(std::string_view text) {
        VariableNames names = usedVariables(text);
        names_.insert(names.begin(), names.end());
    }

    // For a text of unknown use: adds the whole text and its words, both split and not split at "-".
    void addBareNames(std::string_view text) {
        names_.emplace(text);
        addWords(text, "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789_");
        addWords(text, "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789_-");
    }

    void addWords(std::string_view text, std::string_view letters) {
        for (std::size_t begin = text.find_first_of(letters); begin != std::string_view::npos;) {
            const std::size_t end = std::min(text.find_first_not_of(letters, begin), text.size());
            names_.emplace(text.substr(begin, end - begin));
            begin = text.find_first_of(letters, end);
        }
    }

    boost::unordered_flat_set<std::string, VariableNameHash, VariableNameEqual> names_;
    boost::unordered_flat_set<std::uint32_t> unknownKeys_;
};

} // namespace

std::vector<UsageWarning> unusedNames(const CheckedFile &file) {
    const NamesInUse names(file);
    std::vector<UsageWarning> warnings;
    const auto warn = [&](const PropertyListValue *book, std::string_view path, std::string_view kind) {
        if (book == nullptr) {
            return;
        }
        for (const auto &entry : book->entries()) {
            if (const std::string_view name = entry.key.text(); !names.contains(name)) {
                warnings.push_back({fmt::format("{}.{}", path, name), entry.keyOffset,
                                    fmt::format("Nothing uses the {} '{}'", kind, name)});
            }
        }
    };
    if (const PropertyListValue *general = file.root.find("General")) {
        warn(general->find("Variables"), "General.Variables", "variable");
    }
    warn(file.root.find("Conditions"), "Conditions", "condition");
    return warnings;
}

} // namespace velmar
