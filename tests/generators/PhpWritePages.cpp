// Writes all nine pages of a PHP database site into a folder: the arguments are the folder and the
// field list.

#include <fstream>

#include "generators/PhpPages.h"

int main(int argc, char** argv) {
  using namespace tagsmith::generators;
  if (argc != 3) return 2;
  const PhpSite site{"staff", "ann", "sécret", "people", SplitFields(argv[2]),
                     true,    true,  true,     true,     true};
  for (const auto pages : {AddPages, UpdatePages, DeletePages, ListAllPages, MenuPages}) {
    for (const auto& [name, text] : pages(site)) {
      std::ofstream(std::string(argv[1]) + "/" + name, std::ios::binary) << text << "\r\n";
    }
  }
}
