#include <BatchEvaluation.h>

#include <LineReader.h>

#include <Foundation/LocalizedError.h>

#include <fmt/format.h>
#include <nlohmann/json.hpp>
#include <simdjson.h>

#include <exception>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>

namespace velmar {

namespace {

using simdjson::dom::element;

// The reason why a line is not a valid request.
class LineError final : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

template <class Value>
Value as(element member, std::string_view what, std::string_view kind) {
    Value value;
    if (member.get(value) != simdjson::SUCCESS) {
        throw LineError(fmt::format("{} is not {}", what, kind));
    }
    return value;
}

struct Request {
    std::string expression;
    EvaluationContext context;
};

element parsed(simdjson::dom::parser &parser, const std::string &line) {
    element root;
    const simdjson::error_code error = parser.parse(line).get(root);
    if (error == simdjson::UTF8_ERROR) {
        throw LineError("The line is not UTF-8");
    }
    if (error != simdjson::SUCCESS) {
        throw LineError(fmt::format("The line is not JSON: {}", simdjson::error_message(error)));
    }
    return root;
}

Request requestOf(element root, const EvaluationContext &context) {
    std::optional<element> expression;
    std::optional<element> variables;
    for (const auto &[name, member] : as<simdjson::dom::object>(root, "The line", "an object")) {
        if (name == "expression") {
            expression = member;
        } else if (name == "variables") {
            variables = member;
        } else {
            throw LineError(fmt::format("Unknown member '{}'", name));
        }
    }
    if (!expression) {
        throw LineError("The member 'expression' is missing");
    }
    Request request{std::string(as<std::string_view>(*expression, "The member 'expression'", "a text")),
                    context};
    if (variables) {
        const auto object = as<simdjson::dom::object>(*variables, "The member 'variables'", "an object");
        for (const auto &[name, value] : object) {
            const auto text = as<std::string_view>(value, fmt::format("The variable '{}'", name), "a text");
            request.context.set(name, std::string(text));
        }
    }
    return request;
}

std::string errorAnswer(const std::string &text) {
    using nlohmann::json;
    // ASCII only: the answers may be printed on a terminal.
    return fmt::format(R"({{"error": {}}})", json(text).dump(-1, ' ', true, json::error_handler_t::replace));
}

std::string answer(simdjson::dom::parser &parser, const std::string &line, const EvaluationContext &context) {
    try {
        const Request request = requestOf(parsed(parser, line), context);
        const Evaluation evaluation = request.context.evaluate(expressions::Expression(request.expression));
        return evaluation.value ? fmt::format(R"({{"value": {}}})", *evaluation.value)
                                : errorAnswer(evaluation.failure);
    } catch (const std::exception &error) {
        return errorAnswer(error.what()); // An error in a line must not affect the others.
    }
}

} // namespace

void answerBatch(std::istream &in, std::ostream &out, const EvaluationContext &context) {
    static const std::string tooLong =
        errorAnswer(fmt::format("The line is longer than {} bytes", longestBatchLine));
    LineReader reader(in, longestBatchLine);
    simdjson::dom::parser parser;
    while (out && reader.next()) {
        out << (reader.isTooLong() ? tooLong : answer(parser, reader.line(), context)) << '\n' << std::flush;
    }
}

} // namespace velmar
