#pragma once

#include <Configuration/BodyKeyWrapper.h>
#include <Configuration/ConfigurationEnum.h>
#include <Configuration/MDMApi.h>
#include <Configuration/VariableKeyWrapper.h>
#include <Foundation/UUID.h>

#include <array>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace velmar {

/// A request to a device management server, whole or what it adds to its parent; it can be a model of the
/// book "Models" in "APIRequests".
struct APIRequestItem {
    static constexpr std::string_view typeName = "APIRequestItem";

    enum class Method { get, post, put, delete_ };
    friend constexpr auto casesOf(Method) {
        return std::to_array<EnumCase<Method>>({{Method::get, "GET"},
                                                {Method::post, "POST"},
                                                {Method::put, "PUT"},
                                                {Method::delete_, "DELETE"}});
    }

    using Texts = std::map<std::string, std::string>;

    UUID id; ///< New with each decoding of a request; copies keep it.
    std::optional<std::string> modelName;
    bool isParentStyleApplied = false;
    KeyWrapper<std::optional<std::string>> _parentModelName{"ParentRequest", optional};
    KeyWrapper<std::optional<std::string>> _endpoint{"Endpoint", optional};
    KeyWrapper<Method> _method{Method::get, "Method", optional};
    KeyWrapper<std::optional<Texts>> _headers{"Headers", optional};
    KeyWrapper<std::optional<Texts>> _parameters{"Parameters", optional};
    BodyKeyWrapper _body{"Body", optional};
    KeyWrapper<std::optional<MDMApi>> _api{"MDMApi", optional}; ///< Absent: "DefaultMDMApi" of "APIRequests".
    /// Where in the answer the values of which variables stand.
    VariableKeyWrapper<std::optional<Texts>> _variableReadingPaths{"VariableReadingPaths", optional,
                                                                   &namesOfVariables};
};

} // namespace velmar

#ifndef VELMAR_CONFIGURATION_NARROW
#include <Configuration/Whole.h>
#endif
