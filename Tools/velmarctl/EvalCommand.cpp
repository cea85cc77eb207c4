#include <EvalCommand.h>

#include <BatchEvaluation.h>
#include <ConfigurationCheck.h>
#include <EvaluationContext.h>
#include <Explanation.h>
#include <PrintableText.h>
#include <VariableOption.h>

#include <Foundation/LocalizedError.h>

namespace velmar {

EvalCommand::EvalCommand(CLI::App &commandLine)
    : Command(commandLine, "eval", "Say whether a condition holds") {
    CLI::Option *expression = options().add_option("EXPRESSION", expression_, "The condition");
    addVariableOption(options(), variables_);
    CLI::Option *configuration = options()
                                     .add_option("--config", configuration_,
                                                 "Take the variables and named conditions of a configuration")
                                     ->type_name("FILE");
    options()
        .add_flag("--no-admission", noAdmission_, "Leave the file's owner and permissions out")
        ->needs(configuration);
    CLI::Option *explain = options().add_flag("--explain", explain_, "Print the value of each part");
    CLI::Option *batch =
        options()
            .add_flag("--batch", batch_, "Answer the JSON objects of standard input, one a line")
            ->excludes(expression)
            ->excludes(explain);
    options().callback([expression, batch] {
        if (expression->empty() && batch->empty()) {
            throw CLI::RequiredError("EXPRESSION or --batch");
        }
    });
}

ExitStatus EvalCommand::run(const CommandEnvironment &environment) const {
    EvaluationContext context;
    if (configuration_) {
        const ConfigurationCheck check({.admission = !noAdmission_}, environment.authority);
        auto [diagnostics, configuration] = check.check(*configuration_);
        if (!configuration) {
            writeText(environment.err, diagnostics);
            return ExitStatus::refused;
        }
        context = EvaluationContext(std::move(configuration));
    }
    for (const std::string &variable : variables_) {
        const auto [name, value] = assignmentOf(variable);
        context.set(std::string(name), std::string(value));
    }
    if (batch_) {
        answerBatch(environment.in, environment.out, context);
        if (environment.in.bad()) {
            environment.err << "velmarctl: The input could not be read.\n";
            return ExitStatus::failed;
        }
        return ExitStatus::succeeded;
    }
    return evaluate(context, environment);
}

ExitStatus EvalCommand::evaluate(const EvaluationContext &context,
                                 const CommandEnvironment &environment) const {
    std::string failure;
    try {
        const expressions::Expression expression(expression_);
        const Evaluation evaluation = context.evaluate(expression);
        if (explain_) {
            writeExplanation(environment.out, expression, evaluation, context);
        }
        if (evaluation.value) {
            environment.out << (*evaluation.value ? "true\n" : "false\n");
            return ExitStatus::succeeded;
        }
        failure = evaluation.failure;
    } catch (const LocalizedError &error) {
        failure = error.errorDescription();
    }
    environment.out.flush(); // The explanation comes before the error.
    environment.err << printable(failure, "\n    ") << '\n';
    return ExitStatus::refused;
}

} // namespace velmar
