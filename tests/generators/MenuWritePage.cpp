// Writes the page of the menu text that comes in, as the JavaScript Menu Dialog does.

#include <iostream>
#include <iterator>

#include "generators/MenuPage.h"

int main() {
  const std::string menu(std::istreambuf_iterator<char>(std::cin), {});
  std::cout << tagsmith::generators::MenuPage(menu) << "\r\n";
}
