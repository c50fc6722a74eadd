// Measures whole runs of the console tool, in turns with a bare program that only reads the same
// files and writes as many bytes (the floor), and with other programs for the same job, so that all
// see the same state of the machine. All have to write the same book. Prints medians with the
// spread. Usage: quenda-bench-whole TOOL REFERENCES FOLDER CONTACTS RUNS SHAPE; see bench/run.
#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iostream>
#include <iterator>
#include <string>
#include <vector>

#include "bench/contact_data.h"
#include "bench/usage.h"

namespace {

namespace fs = std::filesystem;
using quenda::Usage;

void write_file(const fs::path& path, const std::string& bytes) {
  std::ofstream(path, std::ios::binary) << bytes;
}

std::string read_file(const fs::path& path) {
  std::string bytes(fs::file_size(path), '\0');
  const int file = open(path.c_str(), O_RDONLY);
  if (read(file, bytes.data(), bytes.size()) != static_cast<ssize_t>(bytes.size())) std::abort();
  close(file);
  return bytes;
}

bool same_content(const fs::path& a, const fs::path& b) {
  std::ifstream first(a, std::ios::binary);
  std::ifstream second(b, std::ios::binary);
  return fs::file_size(a) == fs::file_size(b) &&
         std::equal(std::istreambuf_iterator<char>(first), {},
                    std::istreambuf_iterator<char>(second));
}

/// Reads both files and writes as many bytes as the tool adds, taken from the contacts.
void bare_copy(const fs::path& contacts, const fs::path& book, std::size_t size) {
  const std::string bytes = read_file(contacts);
  read_file(book);
  const int file = open(book.c_str(), O_WRONLY | O_APPEND);
  while (size > 0) {
    const std::size_t part = std::min(size, bytes.size());
    if (write(file, bytes.data(), part) != static_cast<ssize_t>(part)) std::abort();
    size -= part;
  }
  fsync(file);
  close(file);
}

/// Lets this process become another program, which says nothing.
void become(const std::vector<std::string>& command) {
  const int nowhere = open("/dev/null", O_WRONLY);
  dup2(nowhere, STDOUT_FILENO);
  dup2(nowhere, STDERR_FILENO);
  std::vector<char*> arguments;
  for (const std::string& argument : command) {
    arguments.push_back(const_cast<char*>(argument.c_str()));
  }
  arguments.push_back(nullptr);
  execvp(arguments[0], arguments.data());
  _exit(1);
}

struct Program {
  const char* name;
  std::function<void()> run;
  std::vector<Usage> runs = {};
};

void print(const Program& program, const Program& floor) {
  const auto seconds = spread_of(program.runs, &Usage::seconds);
  const auto cpu = spread_of(program.runs, &Usage::cpu_seconds);
  const double floor_cpu = spread_of(floor.runs, &Usage::cpu_seconds).median;
  std::printf("%-16s %7.3f s %7.3f (%.3f-%.3f) s CPU %6.3f s system %8.0f faults %7.1f MB %6.1f\n",
              program.name, seconds.median, cpu.median, cpu.least, cpu.most,
              spread_of(program.runs, &Usage::system_seconds).median,
              spread_of(program.runs, &Usage::faults).median,
              spread_of(program.runs, &Usage::megabytes).median, cpu.median / floor_cpu);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 7) {
    std::cerr << "usage: quenda-bench-whole TOOL REFERENCES FOLDER CONTACTS RUNS SHAPE\n";
    return 2;
  }
  const std::string tool = argv[1];
  const std::string references = argv[2];
  const fs::path folder = argv[3];
  const auto contacts = static_cast<std::size_t>(std::atoll(argv[4]));
  const int runs = std::atoi(argv[5]);
  const std::string shape = argv[6];

  fs::create_directories(folder / "data");
  write_file(folder / "Quendapaths.ini", "[Paths]\r\nProgramData=0\r\n");
  write_file(folder / "data/Quenda.ini", "[General]\r\nmyVWL=49\r\nmyVWO=30\r\n");
  const bool log = shape == "log";
  const std::string file = folder / (log ? "ispy.log" : "contacts.csv");
  const std::string book = folder / "data/Quendabook.txt";
  // Nothing large stays in memory here: a measured program would begin with it at its peak.
  const fs::path fresh_book = folder / "fresh.txt";
  const fs::path expected_book = folder / "expected.txt";
  write_file(file, quenda::contacts_of_shape(shape, contacts));
  write_file(fresh_book, quenda::phone_book(contacts));

  std::vector<std::string> command = {tool, "--suite",    folder, "--file",
                                      file, "--existing", "keep"};
  const auto add = [&](std::initializer_list<const char*> options) {
    command.insert(command.end(), options.begin(), options.end());
  };
  if (!log) {
    add({"--name", "Nachname", "--name", "Vorname", "--number", "Telefon", "--address1", "PLZ",
         "--address1", "Ort", "--bind", "1=1"});
  }
  if (shape == "numbers") add({"--number", "Telefon2", "--number", "Telefon3"});
  if (shape == "dry-run") add({"--dry-run"});
  if (shape == "convert") add({"--convert", "yes"});
  if (shape == "report") command.insert(command.end(), {"--report", folder / "report.csv"});

  std::vector<Program> programs = {{"quenda-import", [&] { become(command); }}};
  if (shape == "plain") {
    programs.push_back({"C++, CSV reader", [&] { become({references + "/import", file, book}); }});
    programs.push_back({"Python, csv", [&] { become({"python3", "import.py", file, book}); }});
    programs.push_back({"mawk", [&] {
                          become({"sh", "-c",
                                  "LC_ALL=C mawk -f import.awk \"$1\" \"$2\" > \"$1.new\" && "
                                  "cat \"$1.new\" >> \"$1\"",
                                  "sh", book, file});
                        }});
    programs.push_back({"sqlite3", [&] {
                          become(
                              {"sh", "-c",
                               "cp \"$1\" book.txt && cp \"$2\" contacts.csv && sqlite3 :memory: "
                               "< import.sql && cat fresh.txt >> \"$1\"",
                               "sh", book, file});
                        }});
  }
  std::size_t added = 0;
  programs.push_back({"floor", [&] { bare_copy(file, book, added); }});

  fs::current_path(references);
  for (int i = 0; i < runs; ++i) {
    for (Program& program : programs) {
      fs::copy_file(fresh_book, book, fs::copy_options::overwrite_existing);
      program.runs.push_back(quenda::measure(program.run));
      const bool first = i == 0 && &program == &programs.front();
      if (first) {
        fs::copy_file(book, expected_book, fs::copy_options::overwrite_existing);
        added = fs::file_size(book) - fs::file_size(fresh_book);
      } else if (&program != &programs.back() && !same_content(book, expected_book)) {
        std::cerr << program.name << " wrote another book\n";
        return 1;
      }
    }
  }
  std::printf(
      "%s: %zu contacts (%.1f MB) into a book of as many entries (%.1f MB), %.1f MB added\n",
      shape.c_str(), contacts, static_cast<double>(fs::file_size(file)) / 1e6,
      static_cast<double>(fs::file_size(fresh_book)) / 1e6, static_cast<double>(added) / 1e6);
  for (const Program& program : programs) print(program, programs.back());
}
