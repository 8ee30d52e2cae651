// Writes the index page of a directory, as the File Management Dialog does.
//
//     index_write_page FORMAT DIRECTORY [underline]
//
// FORMAT is 0 for the menu, then the lists: indented, unordered, ordered.

#include <cstdlib>
#include <iostream>

#include "services/host/DriveMap.h"
#include "services/host/HostFiles.h"
#include "sitetools/IndexPage.h"

int main(int argc, char* argv[]) {
  using namespace tagsmith;
  if (argc < 3) return EXIT_FAILURE;
  const auto format = static_cast<sitetools::IndexFormat>(std::atoi(argv[1]));
  sitetools::IndexWatcher nobody;
  std::cout << sitetools::BuildIndexPage(HostFiles(), DriveMap::ToSystemPath(argv[2]), format,
                                         argc > 3, nobody)
                   .value_or("")
            << "\r\n";
}
