#pragma once

#include <Configuration/ConfigurationEnum.h>
#include <Configuration/KeyWrapper.h>

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace velmar {

/// The file that stores the inputs of the user.
struct InputSection {
    static constexpr std::string_view typeName = "InputSection";

    enum class InputFileFormat { plist, json };
    friend constexpr auto casesOf(InputFileFormat) {
        return std::to_array<EnumCase<InputFileFormat>>(
            {{InputFileFormat::plist, "PLIST"}, {InputFileFormat::json, "JSON"}});
    }

    KeyWrapper<InputFileFormat> _fileFormat{InputFileFormat::json, "FileFormat", required};
    KeyWrapper<std::optional<std::string>> _filePath{"FilePath", optional};
};

} // namespace velmar
