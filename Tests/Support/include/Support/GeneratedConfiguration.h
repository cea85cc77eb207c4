#pragma once

#include <Configuration/Description.h>
#include <Foundation/PropertyList.h>

#include <cstdint>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace velmar {

/// Makes random valid files from the descriptions of the items. The same seed gives the same files.
class GeneratedConfiguration {
public:
    explicit GeneratedConfiguration(std::uint32_t seed);

    /// Returns a file in which each optional key is given or left out at random, with bounded nesting.
    [[nodiscard]] PropertyList file();

    /// Adds the models, the variable and the slide that generated items refer to.
    void addWhatIsReferredTo(PropertyList &file);

    /// Returns an item with only its required keys and the key `also`.
    [[nodiscard]] PropertyList leastItem(std::string_view typeName, std::string_view also = {});

    /// Returns a value that a key of an item accepts.
    [[nodiscard]] PropertyList value(std::string_view typeName, const KeyDescription &key);

    [[nodiscard]] const Descriptions &descriptions() const { return descriptions_; }

private:
    [[nodiscard]] bool chance(double probability);
    [[nodiscard]] std::size_t below(std::size_t count);
    [[nodiscard]] PropertyList item(std::string_view typeName, double probability,
                                    std::string_view also = {});
    [[nodiscard]] PropertyList value(const ValueDescription &description);
    [[nodiscard]] std::string text(const ValueDescription &description);

    Descriptions descriptions_;
    std::mt19937 random_;
    double probability_ = 0; ///< That an optional key is given.
    int depth_ = 0;
};

} // namespace velmar
