#!/bin/sh
# Sets up what is missing, builds Tagsmith and passes all tests.
set -eu
root=$(cd "$(dirname "$0")" && pwd)
. "$root/tools/setup.sh"

# Real pages for the load-and-save test come from documentation packages; the desktop test works
# the program in a real window.
# Generated pages run in a real browser, and on PHP with a real database.
TEST_PACKAGES="xauth xvfb xdotool openbox x11-utils imagemagick debian-faq debian-policy git-doc sqlite3-doc
    libjs-jquery libjs-bootstrap php-pear chromium python3 php-cli php-odbc libsqliteodbc tidy
    desktop-file-utils libglib2.0-bin poppler-utils xdg-utils"

install_packages $BUILD_PACKAGES $TEST_PACKAGES
build release
cd "$root"
ctest --preset release
