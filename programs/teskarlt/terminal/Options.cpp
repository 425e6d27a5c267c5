// Options.cpp - the command line by way of CLI11, which no other source includes: it takes long to compile.
#include "teskarlt/terminal/Options.h"

#include <limits>
#include <utility>

#include <CLI/CLI.hpp>
#include <fmt/format.h>

namespace teskarlt {

namespace {

constexpr std::size_t HELP_COLUMN = 34;

std::string ComplaintIfEmpty(const std::string& value) {
  return value.empty() ? "the name is empty" : "";
}

}  // namespace

Option& Option::Named(const char* valueName) {
  option_->type_name(valueName);
  return *this;
}

Option& Option::Required() {
  option_->required();
  return *this;
}

Option& Option::NotEmpty() {
  option_->check(ComplaintIfEmpty);
  return *this;
}

Option& Option::OneOf(const std::vector<std::string>& words) {
  option_->check(CLI::IsMember(words).description(""));
  return *this;
}

Option& Option::OneOfListed(const std::vector<std::string>& words) {
  option_->check(CLI::IsMember(words));
  return *this;
}

Option& Option::OneOfAnyCase(const std::vector<std::string>& words) {
  option_->transform(CLI::IsMember(words, CLI::ignore_case));
  return *this;
}

Option& Option::Within(int least, int most) {
  option_->check(CLI::Range(least, most).description(""));
  return *this;
}

Option& Option::NotNegative() {
  option_->check(CLI::Range(0.0, std::numeric_limits<double>::max()).description(""));
  return *this;
}

Option& Option::Under(const char* heading) {
  option_->group(heading);
  return *this;
}

Option& Option::ShowDefault() {
  option_->capture_default_str();
  return *this;
}

Option& Option::Excludes(const Option& other) {
  option_->excludes(other.option_);
  return *this;
}

Option& Option::Needs(const Option& other) {
  option_->needs(other.option_);
  return *this;
}

bool Option::IsGiven() const {
  return option_->count() > 0;
}

Option Subcommand::Argument(const char* name, std::string& value, const char* help) {
  return Option(app_->add_option(name, value, help)->type_name(""));
}

Option Subcommand::Argument(const char* name, int& value, const char* help) {
  return Option(app_->add_option(name, value, help)->type_name(""));
}

Option Subcommand::Arguments(const char* name, std::vector<int>& values, const char* help) {
  return Option(app_->add_option(name, values, help)->type_name("..."));
}

Option Subcommand::Arguments(const char* name, std::vector<std::string>& values, const char* help) {
  return Option(app_->add_option(name, values, help)->type_name("..."));
}

Option Subcommand::Value(const char* name, std::string& value, const char* help) {
  return Option(app_->add_option(name, value, help));
}

Option Subcommand::Value(const char* name, std::optional<int>& value, const char* help) {
  return Option(app_->add_option(name, value, help));
}

Option Subcommand::Value(const char* name, double& value, const char* help) {
  return Option(app_->add_option(name, value, help));
}

Option Subcommand::Values(const char* name, int count, std::vector<std::string>& values, const char* help) {
  return Option(app_->add_option(name, values, help)->expected(count));
}

Option Subcommand::Repeated(const char* name, std::vector<std::string>& values, const char* help) {
  return Option(app_->add_option(name, values, help)
                    ->expected(1)
                    ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll));
}

Option Subcommand::Many(const char* name, std::vector<std::string>& values, const char* help) {
  return Option(app_->add_option(name, values, help)->take_all());
}

Option Subcommand::Flag(const char* name, bool& isGiven, const char* help) {
  return Option(app_->add_flag(name, isGiven, help));
}

Option Subcommand::FlagInstead(const char* name, std::function<void()> action, const char* help) {
  const auto actAndStop = [action = std::move(action)] {
    action();
    throw CLI::Success();
  };
  return Option(app_->add_flag_callback(name, actAndStop, help));
}

Subcommand Subcommand::Add(const char* name, const char* help) {
  CLI::App* nested = app_->add_subcommand(name, help);
  for (CLI::Option* option : app_->get_options()) {
    if (option != app_->get_help_ptr()) nested->excludes(option);
  }
  return {*nested, *status_};
}

void Subcommand::Footer(const char* text) {
  app_->footer(text);
}

void Subcommand::Run(std::function<void()> run) {
  app_->callback([run = std::move(run), app = app_] {
    if (app->get_subcommands().empty()) run();  // else a nested one has run
  });
}

void Subcommand::RunWithStatus(std::function<int()> run) {
  app_->callback([run = std::move(run), status = status_] { *status = run(); });
}

OptionParser::OptionParser(const char* program, const char* about, const char* version, const char* footer)
    : app_(std::make_unique<CLI::App>(about, program)) {
  app_->require_subcommand(1);
  app_->set_version_flag("-V,--version", version);
  app_->footer(footer);
  app_->get_formatter()->column_width(HELP_COLUMN);
  app_->failure_message([](const CLI::App* app, const CLI::Error& error) {
    return fmt::format("{}: {}; --help tells more\n", app->get_name(), error.what());
  });
}

OptionParser::~OptionParser() = default;

Subcommand OptionParser::Add(const char* name, const char* help) {
  return {*app_->add_subcommand(name, help), status_};
}

int OptionParser::Run(const std::vector<std::string>& arguments) {
  status_ = EXIT_DONE;
  try {
    app_->parse(std::vector<std::string>(arguments.rbegin(), arguments.rend()));
    return status_;
  } catch (const CLI::ParseError& error) {
    return app_->exit(error) == EXIT_DONE ? EXIT_DONE : EXIT_USAGE;
  } catch (const UsageError& error) {
    return app_->exit(CLI::ValidationError(error.what())) == EXIT_DONE ? EXIT_DONE : EXIT_USAGE;
  }
}

}  // namespace teskarlt
