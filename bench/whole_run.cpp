// Measures a whole run of the console tool against a bare program that only reads the same file and
// book and writes as many bytes, in turns, so that both see the same state of the machine. Prints
// medians. Usage: quenda-bench-whole TOOL FOLDER [CONTACTS] [RUNS]
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iostream>
#include <string>
#include <vector>

#include "bench/contact_data.h"

namespace {

namespace fs = std::filesystem;

struct Usage {
  double seconds = 0;      // of the wall clock
  double cpu_seconds = 0;  // of one core
  double megabytes = 0;    // at peak
};

double seconds_of(const timeval& time) {
  return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
}

/// Runs something in a process of its own.
Usage measure(const std::function<void()>& child) {
  const auto start = std::chrono::steady_clock::now();
  const pid_t process = fork();
  if (process == 0) {
    child();
    _exit(0);
  }
  int status = 0;
  rusage usage{};
  wait4(process, &status, 0, &usage);
  if (status != 0) {
    std::cerr << "the measured program failed\n";
    std::exit(1);
  }
  const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - start;
  return {elapsed.count(), seconds_of(usage.ru_utime) + seconds_of(usage.ru_stime),
          static_cast<double>(usage.ru_maxrss) / 1024};
}

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

/// Reads both files and writes what the tool adds.
void bare_copy(const fs::path& contacts, const fs::path& book, std::size_t added) {
  const std::string text = read_file(contacts);
  const std::string entries = read_file(book);
  const int file = open(book.c_str(), O_WRONLY | O_APPEND);
  if (write(file, text.data(), added) != static_cast<ssize_t>(added)) std::abort();
  fsync(file);
  close(file);
}

double median(std::vector<Usage> runs, double Usage::*value) {
  std::sort(runs.begin(), runs.end(),
            [value](const Usage& a, const Usage& b) { return a.*value < b.*value; });
  return runs[runs.size() / 2].*value;
}

void print(const char* name, const std::vector<Usage>& runs) {
  std::printf("%-22s %8.3f s  %8.3f s CPU  %8.1f MB\n", name, median(runs, &Usage::seconds),
              median(runs, &Usage::cpu_seconds), median(runs, &Usage::megabytes));
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 3) {
    std::cerr << "usage: quenda-bench-whole TOOL FOLDER [CONTACTS] [RUNS]\n";
    return 2;
  }
  const std::string tool = argv[1];
  const fs::path folder = argv[2];
  const auto contacts = static_cast<std::size_t>(argc > 3 ? std::atoll(argv[3]) : 1'000'000);
  const int runs = argc > 4 ? std::atoi(argv[4]) : 5;

  fs::create_directories(folder / "data");
  write_file(folder / "Quendapaths.ini", "[Paths]\r\nProgramData=0\r\n");
  write_file(folder / "data/Quenda.ini", "[General]\r\nmyVWL=49\r\nmyVWO=30\r\n");
  const fs::path file = folder / "contacts.csv";
  const fs::path book = folder / "data/Quendabook.txt";
  write_file(file, quenda::contact_file(contacts));
  const std::string fresh_book = quenda::phone_book(contacts);

  const std::string suite = folder.string();
  const std::string file_text = file.string();
  std::vector<Usage> tool_runs;
  std::vector<Usage> bare_runs;
  for (int i = 0; i < runs; ++i) {
    write_file(book, fresh_book);
    tool_runs.push_back(measure([&] {
      const int nowhere = open("/dev/null", O_WRONLY);
      dup2(nowhere, STDOUT_FILENO);
      dup2(nowhere, STDERR_FILENO);
      execl(tool.c_str(), tool.c_str(), "--suite", suite.c_str(), "--file", file_text.c_str(),
            "--name", "Nachname", "--name", "Vorname", "--number", "Telefon", "--address1", "PLZ",
            "--address1", "Ort", "--bind", "1=1", "--existing", "keep", nullptr);
      _exit(1);
    }));
    const std::size_t added = fs::file_size(book) - fresh_book.size();
    write_file(book, fresh_book);
    bare_runs.push_back(measure([&] { bare_copy(file, book, added); }));
  }
  std::printf("%zu contacts (%.0f MB) into a book of as many entries (%.0f MB), medians of %d\n",
              contacts, static_cast<double>(fs::file_size(file)) / 1e6,
              static_cast<double>(fresh_book.size()) / 1e6, runs);
  print("quenda-import", tool_runs);
  print("bare read and write", bare_runs);
  std::printf("ratio                  %8.1f    %8.1f        %8.1f\n",
              median(tool_runs, &Usage::seconds) / median(bare_runs, &Usage::seconds),
              median(tool_runs, &Usage::cpu_seconds) / median(bare_runs, &Usage::cpu_seconds),
              median(tool_runs, &Usage::megabytes) / median(bare_runs, &Usage::megabytes));
}
