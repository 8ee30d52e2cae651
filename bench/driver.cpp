// The site tools and the spelling check without a window, one command a process, on the functions
// that their forms call: what hyperfine sets beside the commands that do the same elsewhere.

#include <chrono>
#include <exception>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iostream>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "integration/PageWords.h"
#include "integration/SpellCheck.h"
#include "services/Error.h"
#include "services/TextEncoding.h"
#include "services/host/HostFiles.h"
#include "services/host/HostRtfConversion.h"
#include "services/host/HunspellDictionary.h"
#include "sitetools/DirectoryReplace.h"
#include "sitetools/IndexPage.h"
#include "sitetools/LowerCaseWalk.h"
#include "sitetools/ReplaceText.h"

namespace tagsmith::bench {
namespace {

namespace fs = std::filesystem;

using Arguments = std::vector<std::string>;

std::string SystemPath(const std::string& hostPath) {
  return DriveMap::ToSystemPath(fs::absolute(hostPath).lexically_normal().string());
}

void ReplaceInDirectory(HostFiles& files, const Arguments& arguments) {
  const std::string directory = SystemPath(arguments[0]);
  const TextSearch find(arguments[1]);
  std::string text;
  for (const std::string& name : files.FileNames(directory)) {
    const std::string path = directory + '\\' + name;
    const auto outcome = sitetools::ReplaceInOneFile(files, path, find, arguments[2], text);
    if (outcome != sitetools::FileOutcome::kWritten) std::cerr << path << " was left\n";
  }
}

// What Replace All does with the one text in the window.
void ReplaceInFile(HostFiles& files, const Arguments& arguments) {
  const std::string path = SystemPath(arguments[0]);
  std::optional<std::string> bytes = files.ReadFile(path, sitetools::kFileSizeLimit);
  if (!bytes) throw Error(ErrorCode::kOther, "The file is too large");
  DecodedText document = DecodeText(*std::move(bytes));
  const auto replaced =
      sitetools::ReplaceAll(document.text, TextSearch(arguments[1]), arguments[2]);
  document.text.replace(replaced.start, replaced.end - replaced.start, replaced.text);
  files.WriteFile(path, EncodeText(document.text, document.encoding), Durability::kWritten);
  std::cout << replaced.count << '\n';
}

void LowerCase(HostFiles& files, const Arguments& arguments) {
  const auto left = sitetools::LowerCaseBelow(files, SystemPath(arguments[0]),
                                              [](std::string_view) { return true; });
  if (left.count > 0) std::cerr << left.count << " names were taken\n";
}

void Index(HostFiles& files, const Arguments& arguments) {
  sitetools::IndexWatcher watcher;
  const auto page =
      sitetools::BuildIndexPage(files, SystemPath(arguments[0]), sitetools::IndexFormat::kUList,
                                /*underline=*/false, watcher);
  if (page) files.WriteFile(SystemPath(arguments[1]), *page + "\r\n", Durability::kWritten);
}

void ConvertFile(HostFiles& files, const std::string& from, const std::string& to) {
  HostRtfConversion(files).ScroogeConvertFile(SystemPath(from), SystemPath(to), 0, "Tagsmith", "0",
                                              "0", "Arial", 0);
}

void ConvertDirectory(HostFiles& files, const Arguments& arguments) {
  for (const auto& entry : fs::directory_iterator(arguments[0])) {
    const fs::path to = fs::path(arguments[1]) / entry.path().stem().concat(".html");
    try {
      ConvertFile(files, entry.path(), to);
    } catch (const Error& error) {
      std::cerr << entry.path() << ": " << error.what() << '\n';
    }
  }
}

// All of a page, each doubtful word ignored. Reading the dictionary is not counted in the time.
void Spell(HostFiles& files, const Arguments& arguments) {
  std::optional<std::string> bytes =
      files.ReadFile(SystemPath(arguments[0]), sitetools::kFileSizeLimit);
  if (!bytes) throw Error(ErrorCode::kOther, "The file is too large");
  std::string page = DecodeText(*std::move(bytes)).text;
  std::size_t words = 0;
  std::set<std::string, std::less<>> different;
  integration::PageWords walk(page);
  for (; const auto word = walk.Next(); ++words) different.emplace(word->text);

  HunspellDictionary dictionary;
  dictionary.Knows("the");
  integration::SpellCheck check(dictionary);
  std::size_t doubtful = 0;
  const auto start = std::chrono::steady_clock::now();
  check.CheckText(std::move(page));
  for (; check.ResultCode() == integration::kDoubtfulWord; check.ContinueCheck()) ++doubtful;
  const std::chrono::duration<double> time = std::chrono::steady_clock::now() - start;
  std::cout << words << " words, " << different.size() << " different, " << doubtful
            << " doubtful\n";
  std::cerr << static_cast<double>(words) / time.count() << " words a second\n";
}

void Suggest(HostFiles& /*files*/, const Arguments& arguments) {
  HunspellDictionary dictionary;
  std::ifstream list(arguments[0]);
  for (std::string word; std::getline(list, word);) {
    std::cout << word << ':';
    for (const std::string& suggestion : dictionary.Suggest(word)) std::cout << ' ' << suggestion;
    std::cout << '\n';
  }
}

struct Command {
  std::size_t argumentCount;
  std::function<void(HostFiles&, const Arguments&)> run;
};

const std::map<std::string, Command, std::less<>> kCommands = {
    {"replace-dir", {3, ReplaceInDirectory}},
    {"replace-file", {3, ReplaceInFile}},
    {"lowercase", {1, LowerCase}},
    {"index", {2, Index}},
    {"spell", {1, Spell}},
    {"suggest", {1, Suggest}},
    {"rtf",
     {2, [](HostFiles& files, const Arguments& names) { ConvertFile(files, names[0], names[1]); }}},
    {"rtf-dir", {2, ConvertDirectory}},
};

int Main(const Arguments& arguments) {
  const auto command = arguments.empty() ? kCommands.end() : kCommands.find(arguments.front());
  if (command == kCommands.end() || arguments.size() - 1 != command->second.argumentCount) {
    std::cerr << "tagsmith_bench_driver replace-dir DIR FIND REPL | replace-file FILE FIND REPL |\n"
                 "    lowercase DIR | index DIR OUT.html | rtf IN OUT | rtf-dir INDIR OUTDIR |\n"
                 "    spell FILE.html | suggest WORDS.txt\n";
    return 2;
  }
  HostFiles files;
  try {
    command->second.run(files, {arguments.begin() + 1, arguments.end()});
    return 0;
  } catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    return 1;
  }
}

}  // namespace
}  // namespace tagsmith::bench

int main(int argc, char** argv) { return tagsmith::bench::Main({argv + 1, argv + argc}); }
