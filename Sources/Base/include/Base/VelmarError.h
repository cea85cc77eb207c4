#pragma once

#include <Base/TerminationEventSender.h>
#include <Foundation/LocalizedError.h>

#include <string>

namespace velmar {

/// The cases of VelmarError. Refer to them through it, as in VelmarError::MissingFile{path}.
struct VelmarErrorCases {
    struct InternalError {
        std::string description;
        [[nodiscard]] std::string errorDescription() const;
    };
    struct MissingConfigurationFile {
        std::string path; ///< The absolute string of the file's URL, percent-encoded.
        [[nodiscard]] std::string errorDescription() const;
    };
    struct IncorrectPermissionsOnConfigFile {
        std::string path; ///< A plain path.
        [[nodiscard]] std::string errorDescription() const;
    };
    struct WrongKeyInConfiguration {
        std::string description;
        [[nodiscard]] std::string errorDescription() const;
    };
    struct InvalidInstaller {
        std::string installer;
        [[nodiscard]] std::string errorDescription() const;
    };
    struct InvalidColorStringHexacode {
        std::string code;
        [[nodiscard]] std::string errorDescription() const;
    };
    struct InvalidTextAlignment {
        std::string alignment;
        [[nodiscard]] std::string errorDescription() const;
    };
    struct UnderlyingError {
        std::string description; ///< The text of the underlying error, used unchanged.
        [[nodiscard]] std::string errorDescription() const;
    };
    struct InvalidURL {
        std::string path;
        [[nodiscard]] std::string errorDescription() const;
    };
    struct MissingFile {
        std::string path;
        [[nodiscard]] std::string errorDescription() const;
    };
    struct TerminationEventUnbuilt {
        TerminationEventSender::Event eventType;
        std::string error;
        [[nodiscard]] std::string errorDescription() const;
    };
    struct KeychainError {
        std::string description;
        [[nodiscard]] std::string errorDescription() const;
    };
    struct RegisteredVariableUsesOtherVariables {
        std::string variable;
        std::string path; ///< Dotted path of the item that registers the variable.
        [[nodiscard]] std::string errorDescription() const;
    };
    struct NoSimpleMatchFoundToDecodeArray {
        [[nodiscard]] std::string errorDescription() const;
    };
    struct CompletionNilString {
        [[nodiscard]] std::string errorDescription() const;
    };
};

/// The common error type of the application. Administrators search for its texts, so their wording is fixed.
class VelmarError final
    : public VelmarErrorCases,
      public ErrorOfCases<
          VelmarErrorCases::InternalError, VelmarErrorCases::MissingConfigurationFile,
          VelmarErrorCases::IncorrectPermissionsOnConfigFile, VelmarErrorCases::WrongKeyInConfiguration,
          VelmarErrorCases::InvalidInstaller, VelmarErrorCases::InvalidColorStringHexacode,
          VelmarErrorCases::InvalidTextAlignment, VelmarErrorCases::UnderlyingError,
          VelmarErrorCases::InvalidURL, VelmarErrorCases::MissingFile,
          VelmarErrorCases::TerminationEventUnbuilt, VelmarErrorCases::KeychainError,
          VelmarErrorCases::RegisteredVariableUsesOtherVariables,
          VelmarErrorCases::NoSimpleMatchFoundToDecodeArray, VelmarErrorCases::CompletionNilString> {
public:
    using ErrorOfCases::ErrorOfCases;
};

} // namespace velmar
