// Options.h - the subcommands of the program, their arguments and options, and the parsing of a command line.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace CLI {
class App;
class Option;
}  // namespace CLI

namespace teskarlt {

constexpr int EXIT_DONE = 0;
constexpr int EXIT_REFUSED = 1;  // refused or failed; nothing was changed
constexpr int EXIT_USAGE = 2;
constexpr int EXIT_WRITTEN = 3;  // a file was written, and then something failed or was left out

// A command line that cannot be meant so; `what()` is one sentence about it.
class UsageError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// One argument or option of a subcommand, which owns it. Each function gives the option itself.
class Option {
 public:
  // What stands for its value in the help: "FILE".
  Option& Named(const char* valueName);
  Option& Required();
  // An empty value comes of a shell variable that is not set.
  Option& NotEmpty();
  Option& OneOf(const std::vector<std::string>& words);
  // The same, and the help lists the words.
  Option& OneOfListed(const std::vector<std::string>& words);
  // The same without regard to case; the value becomes the word as it stands in the list.
  Option& OneOfAnyCase(const std::vector<std::string>& words);
  Option& Within(int least, int most);
  Option& NotNegative();  // nor infinite nor no number
  // Under this heading in the help, not among the other options.
  Option& Under(const char* heading);
  // The value that it has before the parsing stands in the help.
  Option& ShowDefault();
  // A command line that has both options, or this one without the other, is refused.
  Option& Excludes(const Option& other);
  Option& Needs(const Option& other);

  // Whether the command line has it, be its value empty.
  bool IsGiven() const;

 private:
  friend class Subcommand;
  explicit Option(CLI::Option* option) : option_(option) {}

  CLI::Option* option_;
};

// A subcommand, owned by the parser. The variables that take the values must live until the command has run.
class Subcommand {
 public:
  // Arguments are known by their place, options by a name with dashes: "-o,--output".
  Option Argument(const char* name, std::string& value, const char* help);
  Option Argument(const char* name, int& value, const char* help);
  Option Arguments(const char* name, std::vector<int>& values, const char* help);
  Option Arguments(const char* name, std::vector<std::string>& values, const char* help);
  Option Value(const char* name, std::string& value, const char* help);
  Option Value(const char* name, std::optional<int>& value, const char* help);
  Option Value(const char* name, double& value, const char* help);
  // Takes `count` values behind its name.
  Option Values(const char* name, int count, std::vector<std::string>& values, const char* help);
  // May stand several times, with one value each.
  Option Repeated(const char* name, std::vector<std::string>& values, const char* help);
  // Takes all the words that follow, and may stand several times.
  Option Many(const char* name, std::vector<std::string>& values, const char* help);
  Option Flag(const char* name, bool& isGiven, const char* help);
  // Does what it stands for instead of running the command.
  Option FlagInstead(const char* name, std::function<void()> action, const char* help);

  // A subcommand of this one, which runs in its place and takes none of the arguments and options that this
  // one has by now.
  Subcommand Add(const char* name, const char* help);

  // What stands at the end of the help: remarks and examples.
  void Footer(const char* text);
  // What the subcommand does; it has done its work when it throws nothing. It may throw UsageError.
  void Run(std::function<void()> run);
  // The same for a command that gives the program's exit status.
  void RunWithStatus(std::function<int()> run);

 private:
  friend class OptionParser;
  Subcommand(CLI::App& app, int& status) : app_(&app), status_(&status) {}

  CLI::App* app_;
  int* status_;  // of the parser
};

// Parses command lines and runs the subcommand that they name.
class OptionParser {
 public:
  OptionParser(const char* program, const char* about, const char* version, const char* footer);
  ~OptionParser();
  OptionParser(const OptionParser&) = delete;
  OptionParser& operator=(const OptionParser&) = delete;

  Subcommand Add(const char* name, const char* help);

  // The exit status. Help and version go to standard output, wrong usage to standard error; whatever else a
  // subcommand throws comes through.
  int Run(const std::vector<std::string>& arguments);

 private:
  std::unique_ptr<CLI::App> app_;
  int status_ = EXIT_DONE;
};

}  // namespace teskarlt
