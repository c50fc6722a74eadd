#include "app/quenda-import/batch_options.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <map>
#include <string_view>
#include <utility>

#include "support/build_version.h"
#include "text/text.h"

namespace quenda {
namespace {

constexpr const char* kExamples = R"text(Beispiele:
  Spalten einmal im Assistenten wählen, dann jede Nacht einlesen:
    quenda-import --suite /opt/quenda --file kontakte.csv --existing keep --quiet
  Spalten angeben und nur zeigen, was eingelesen würde:
    quenda-import --suite . --file kontakte.csv --name Vorname --name Nachname \
      --number Mobil --number "Telefon privat" --suffix "1=(mobil)" --dry-run
  Ein Anrufprotokoll von ISpy:
    quenda-import --suite . --file logs/ispy.log --existing keep
  Das Telefonbuch vorher sichern, und danach doch alles wie davor:
    quenda-import --suite . --file kontakte.csv --backup
    quenda-import --suite . --undo

Ende-Status: 0 eingelesen (letzte Zeile der Ausgabe: data oder nodata),
1 abgelehnt oder gescheitert, 2 falscher Aufruf,
3 eingelesen, aber eine Rufnummer nicht übernommen (nur mit --strict).)text";

/// Ends the reading of the arguments with a status and a message.
struct Stop {
  int status;
  std::string text;
};

/// The option texts as they were typed, UTF-8.
struct Typed {
  std::string suite, file, delimiter, convert, automatic, flip_name, existing, min_name, country,
      area, report;
  std::array<std::vector<std::string>, kHeaderKinds> columns;
  std::vector<std::string> bindings, suffixes;
  int address_order = -1;
};

const std::map<std::string, int> kDelimiterNames = {{"semicolon", 0}, {"comma", 1}, {"tab", 2}};
const std::map<std::string, int> kExistingNames = {{"ask", 0}, {"new", 1}, {"keep", 2}};
const std::map<std::string, int> kBindingNames = {{"none", 0}, {"1", 1}, {"2", 2}};
const std::map<std::string, int> kYesNo = {{"no", 0}, {"yes", 1}};
constexpr std::array<const char*, kHeaderKinds> kColumnOptions = {"--name", "--number",
                                                                  "--address1", "--address2"};

void declare(CLI::App& cli, Typed& typed, BatchOptions& options) {
  cli.option_defaults()->group("Optionen");
  cli.set_help_flag("-h,--help", "Diese Hilfe")->group("Optionen");
  cli.set_version_flag("--version", concat("quenda-import ", build_version()),
                       "Version und Stand des Programms");
  cli.allow_windows_style_options(false);
  cli.get_formatter()->label("Usage", "Aufruf");
  cli.get_formatter()->label("OPTIONS", "Optionen");
  cli.get_formatter()->label("Excludes", "nicht mit");
  cli.footer(kExamples);

  cli.add_option("--suite", typed.suite, "Programmordner der Suite (sonst der dieses Programms)")
      ->option_text("ORDNER");
  auto* file = cli.add_option("--file", typed.file, "Datei mit Trennzeichen, oder ein ispy.log")
                   ->option_text("DATEI");
  cli.add_flag("--outlook", options.outlook, "Kontakte aus Outlook (nur unter Windows)")
      ->excludes(file);
  cli.add_option("--delimiter", typed.delimiter, "Trennzeichen, falls keines erkannt wird")
      ->option_text("semicolon|comma|tab");
  cli.add_option("--convert", typed.convert, "Datei beim Einlesen anpassen (UTF-8, vCard ...)")
      ->option_text("yes|no");
  cli.add_option("--columns", typed.automatic, "Spalten eines bekannten Exports wählen")
      ->option_text("auto");
  constexpr std::array kWhat = {"Spalte des Namens, bis zu 2", "Spalte einer Nummer, bis zu 3",
                                "Spalte der Adresse 1, bis zu 3", "Spalte der Adresse 2, bis zu 3"};
  for (std::size_t kind = 0; kind < kHeaderKinds; ++kind) {
    cli.add_option(kColumnOptions[kind], typed.columns[kind], kWhat[kind])
        ->allow_extra_args(false)
        ->option_text("KOPFTEXT");
  }
  cli.add_option("--flip-name", typed.flip_name, "Zweite Namensspalte zuerst")
      ->option_text("yes|no");
  cli.add_option("--address-order", typed.address_order, "Reihenfolge der Adressteile")
      ->check(CLI::Range(0, 5))
      ->option_text("0..5");
  cli.add_option("--bind", typed.bindings, "Adresse, die Nummer K (1 bis 3) bekommt")
      ->allow_extra_args(false)
      ->option_text("K=1|2|none");
  cli.add_option("--suffix", typed.suffixes, "Zusatz zum Namen bei Nummer K (1 bis 3)")
      ->allow_extra_args(false)
      ->option_text("K=TEXT");
  cli.add_option("--existing", typed.existing, "Nummer steht schon im Telefonbuch")
      ->option_text("ask|new|keep");
  cli.add_option("--min-name", typed.min_name,
                 "Namen unter 3 Zeichen weglassen (Datei und Outlook)")
      ->option_text("yes|no");
  cli.add_option("--country", typed.country, "Eigene Landesvorwahl, z. B. 0049")
      ->option_text("VORWAHL");
  cli.add_option("--area", typed.area, "Eigene Ortsvorwahl, z. B. 030")->option_text("VORWAHL");
  cli.add_flag("--backup", options.backup,
               "Telefonbuch vorher in den Ordner backup kopieren, für --undo");
  cli.add_flag("--undo", options.undo, "Letzten Import zurücknehmen, der gesichert hat")
      ->excludes(file);
  cli.add_flag("--dry-run", options.dry_run, "Nur zeigen: Name, Nummer und Adresse mit TAB");
  cli.add_option("--report", typed.report,
                 "Bericht über jede Rufnummer: CSV, bei der Endung .json JSON; - für die Ausgabe")
      ->option_text("DATEI|-");
  cli.add_flag("--strict", options.strict,
               "Ende-Status 3, wenn eine Rufnummer nicht übernommen wurde");
  cli.add_flag("--quiet", options.quiet, "Keine Fortschrittsanzeige");
}

std::string converted(const std::string& typed, ExitStatus status) {
  const auto text = from_utf8(typed);
  if (!text) {
    throw Stop{status, concat("\"", typed, "\" enthält Zeichen, die Windows-1252 nicht hat.")};
  }
  return *text;
}

int choice(const std::map<std::string, int>& names, const std::string& typed,
           std::string_view option) {
  const auto found = names.find(typed);
  if (found == names.end()) {
    throw Stop{kExitWrongUsage, concat(option, " kennt \"", typed, "\" nicht.")};
  }
  return found->second;
}

/// The row of "K=..." from 0, and what follows the equals sign.
std::pair<std::size_t, std::string> row_value(const std::string& typed, std::string_view option) {
  if (typed.size() < 2 || typed[0] < '1' || typed[0] > '3' || typed[1] != '=') {
    throw Stop{kExitWrongUsage,
               concat(option, " braucht 1=, 2= oder 3= vor dem Wert, nicht \"", typed, "\".")};
  }
  return {static_cast<std::size_t>(typed[0] - '1'), typed.substr(2)};
}

void check_column_counts(const Typed& typed) {
  for (std::size_t kind = 0; kind < kHeaderKinds; ++kind) {
    if (typed.columns[kind].size() > most_columns(kind)) {
      throw Stop{kExitWrongUsage, concat(kColumnOptions[kind], " darf höchstens ",
                                         std::to_string(kMostColumns[kind]), "-mal stehen.")};
    }
  }
}

/// Taking an import back has nothing to do with another one.
void check_undo_alone(const CLI::App& cli) {
  for (const CLI::Option* option : cli.get_options()) {
    const std::string name = option->get_name();
    if (option->count() == 0 || name == "--undo" || name == "--suite" || name == "--quiet")
      continue;
    throw Stop{kExitWrongUsage, concat("--undo geht nicht mit ", name, ".")};
  }
}

/// Names of files and columns. What Windows-1252 lacks cannot be found, which is no wrong usage.
void take_names(const Typed& typed, BatchOptions& options) {
  options.suite = converted(typed.suite, kExitRefused);
  options.file = converted(typed.file, kExitRefused);
  for (std::size_t kind = 0; kind < kHeaderKinds; ++kind) {
    for (const std::string& text : typed.columns[kind]) {
      options.columns[kind].push_back(converted(text, kExitRefused));
    }
  }
}

void take(const CLI::App& cli, const Typed& typed, BatchOptions& options) {
  const auto given = [&](const char* name) { return cli.count(name) > 0; };
  if (options.undo) {
    check_undo_alone(cli);
  } else if (!given("--file") && !options.outlook) {
    throw Stop{kExitWrongUsage, "Es fehlt --file oder --outlook."};
  }
  check_column_counts(typed);
  if (given("--delimiter")) {
    options.delimiter = choice(kDelimiterNames, typed.delimiter, "--delimiter");
  }
  if (given("--convert")) options.convert = choice(kYesNo, typed.convert, "--convert") == 1;
  if (given("--columns")) {
    options.auto_columns = choice({{"auto", 1}}, typed.automatic, "--columns") == 1;
    for (const char* option : kColumnOptions) {
      if (given(option)) {
        throw Stop{kExitWrongUsage, concat("--columns auto geht nicht mit ", option, ".")};
      }
    }
  }
  if (given("--flip-name")) options.flip_name = choice(kYesNo, typed.flip_name, "--flip-name") == 1;
  if (given("--min-name")) options.min_name = choice(kYesNo, typed.min_name, "--min-name") == 1;
  if (given("--existing")) options.existing = choice(kExistingNames, typed.existing, "--existing");
  if (given("--address-order")) options.address_order = typed.address_order;
  if (given("--country")) options.country = converted(typed.country, kExitWrongUsage);
  if (given("--area")) options.area = converted(typed.area, kExitWrongUsage);
  for (const std::string& text : typed.bindings) {
    const auto [row, value] = row_value(text, "--bind");
    options.bindings[row] = choice(kBindingNames, value, "--bind");
  }
  for (const std::string& text : typed.suffixes) {
    const auto [row, value] = row_value(text, "--suffix");
    options.suffixes[row] = converted(value, kExitWrongUsage);
  }
  if (given("--report")) options.report = converted(typed.report, kExitRefused);
  take_names(typed, options);
}

}  // namespace

bool BatchOptions::columns_given() const {
  return std::any_of(columns.begin(), columns.end(),
                     [](const auto& kind) { return !kind.empty(); });
}

BatchCommand read_batch_command(const std::vector<std::string>& arguments) {
  CLI::App cli("Liest Kontakte in das Telefonbuch der Quenda-Suite ein, ohne Fenster.",
               "quenda-import");
  Typed typed;
  BatchOptions options;
  declare(cli, typed, options);
  try {
    // The library takes the arguments from the back.
    cli.parse(std::vector<std::string>(arguments.rbegin(), arguments.rend()));
    take(cli, typed, options);
    return {std::move(options), kExitDone, {}};
  } catch (const CLI::CallForHelp&) {
    return {std::nullopt, kExitDone, cli.help()};
  } catch (const CLI::CallForVersion& version) {
    return {std::nullopt, kExitDone, concat(version.what(), "\n")};
  } catch (const CLI::ParseError& error) {
    return {std::nullopt, kExitWrongUsage, concat("quenda-import: ", error.what(), "\n")};
  } catch (const Stop& stop) {
    return {std::nullopt, stop.status, concat("quenda-import: ", stop.text, "\n")};
  }
}

}  // namespace quenda
