#pragma once

#include <Configuration/CodingPath.h>
#include <Configuration/DecodingNotes.h>
#include <Configuration/VariablesRecords.h>
#include <Foundation/PropertyList.h>

#include <functional>
#include <map>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace velmar {

struct Library;

/// ASCII letters in upper and lower case count as the same.
[[nodiscard]] bool equalButForCase(std::string_view left, std::string_view right);

/// The surroundings of one decoding, from its root to the settling of the references. Used by one thread.
class DecodingContext {
public:
    explicit DecodingContext(DecodingNotes *notes = nullptr) : notes_(notes) {}

    /// Where to note what is passed over; null when nobody asked.
    [[nodiscard]] DecodingNotes *notes() const { return notes_; }

    /// Keeps a reference to another part of the file until all of the file is decoded. `value` is where it
    /// stands in the file.
    void addReference(const PropertyList &value, std::function<void(const Library &)> settle);

    /// Settles the references in the order in which they were met; what fails throws ConfigurationError with
    /// the path of the reference in `file`, the root of what was decoded.
    void settleReferences(const Library &library, const PropertyList &file);

    /// What keys that name a model have in common: one value for each type and name, made by the first of
    /// them. Null before that.
    [[nodiscard]] std::shared_ptr<void> &valueOfName(std::string_view typeName, const std::string &name);

    /// Keeps what the value at a place uses, to be checked when all of the file is decoded. Like the
    /// declarations it throws ConfigurationError beyond 64 MiB of names and paths: one long key above many
    /// values would take the memory of a machine.
    void addVariablesRecord(const CodingPath &path, std::uint32_t offset, VariableNames variables,
                            std::optional<expressions::Expression> condition = std::nullopt);
    void declareVariable(std::string name);
    /// Keeps a text whose populated form tells the names that it declares, until the variables are known.
    void declareByPopulatedText(std::string text, std::vector<std::string> (*names)(const std::string &)) {
        declaringTexts_.emplace_back(std::move(text), names);
    }
    /// Declares what the kept texts do with the values that the variables start with; those that cannot be
    /// populated declare nothing.
    void declareByPopulatedTexts(const std::map<std::string, std::string> &initialValues);
    [[nodiscard]] const VariablesRecords &variablesRecords() const { return records_; }
    [[nodiscard]] VariablesRecords takeVariablesRecords() { return std::move(records_); }
    [[nodiscard]] const VariableNames &declaredVariables() const { return declaredVariables_; }

    void noteFailure(const std::string &keyPath, std::uint32_t offset);
    void noteUnknownKey(const CodingPath &item, const std::string &key, std::uint32_t offset,
                        std::span<const std::string_view> knownKeys);
    void noteEnumerationCase(const CodingPath &path, const std::string &value, std::uint32_t offset,
                             std::span<const std::string_view> rawStrings);

private:
    struct Reference {
        const PropertyList *value;
        std::function<void(const Library &)> settle;
    };

    void spend(std::size_t bytes);

    DecodingNotes *notes_;
    std::size_t bytesSpent_ = 0; ///< On names and paths that are kept.
    std::vector<Reference> references_;
    std::map<std::pair<std::string_view, std::string>, std::shared_ptr<void>> valuesOfNames_;
    VariablesRecords records_;
    VariableNames declaredVariables_;
    std::vector<std::pair<std::string, std::vector<std::string> (*)(const std::string &)>> declaringTexts_;
};

/// A key that an enclosing item has read from the dictionary of an item: a known one.
struct KeyReadBefore {
    std::string_view key;
    const KeyReadBefore *before = nullptr;
};

/// One value about to be decoded, and where it stands.
struct Decoding {
    const PropertyList &value;
    const CodingPath &path;
    DecodingContext &context;
    const KeyReadBefore *keysReadBefore = nullptr;
};

} // namespace velmar
