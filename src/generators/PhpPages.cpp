#include "generators/PhpPages.h"

#include <cstddef>

#include "core/Template.h"

namespace tagsmith::generators {
namespace {

// --- The texts ---

constexpr std::string_view kHead = R"PHP(<?

// This page was generated with Tagsmith by Orlwick

print ("<HTML>");
print ("<HEAD><TITLE>{title}</TITLE></HEAD>");

print ("<H1>{title}</H1><HR><BR>");

// Connect to ODBC DSN and Call the Query

$myDB = odbc_connect("{dsn}","{user}","{password}");
)PHP";

constexpr std::string_view kTail = R"PHP(odbc_close($myDB);

print ("<BR>");
{menu link}print ("</BODY></HTML>");

?>)PHP";

constexpr std::string_view kPrintedMenuLink =
    R"PHP(print ("<A HREF=menu.html>Back To The Menu</A>");

)PHP";

constexpr std::string_view kMenuLink = R"(<A HREF=menu.html>Back To The Menu</A>

)";

constexpr std::string_view kAddForm = R"(<HTML>
<!-- This page was generated with Tagsmith by Orlwick -->

<HEAD><TITLE>Add Form</TITLE></HEAD>

<H1>Add Form</H1><HR><BR>

<FORM Name=frmAdd Method=POST Action=add.php>
{inputs}
   <INPUT Name=SUBMIT Type=SUBMIT Value=SUBMIT></INPUT>
   &nbsp;&nbsp;&nbsp;
   <INPUT Name=RESET Type=RESET Value=RESET></INPUT>
</FORM>

<BR><HR>
{menu link}</BODY></HTML>)";

constexpr std::string_view kInput = R"(   <B>{name}:</B><BR>   <INPUT Name={name}></INPUT><BR><BR>
)";

constexpr std::string_view kDefault = R"PHP(if (${name} == "") ${name} = " ";
)PHP";

constexpr std::string_view kAdd = R"PHP(
{defaults}
$query = "INSERT INTO {table} ({columns}) VALUES ({values}) ";

if ($junk = odbc_exec($myDB,$query)) {
     print ("<H3>The Record Was Added</H3>");
} else {
     print ("<H3>There Was An Error.  The Record Was Not Added</H3>");
}

)PHP";

constexpr std::string_view kUpdate = R"PHP(
{defaults}
$query = "UPDATE {table} SET {pairs} WHERE ID=$id ";

if ($junk = odbc_exec($myDB,$query)) {
     print ("<H3>The Record Was Updated</H3>");
} else {
     print ("<H3>There Was An Error.  The Record Was Not Updated</H3>");
}

)PHP";

constexpr std::string_view kDelete = R"PHP(
$query = "DELETE FROM {table} WHERE ID=$id ";

if ($junk = odbc_exec($myDB,$query)) {
     print ("<H3>The Record Was Deleted</H3>");
} else {
     print ("<H3>There Was An Error.  The Record Was Not Deleted</H3>");
}

)PHP";

constexpr std::string_view kListing = R"PHP($query = "SELECT * FROM {table}";
$result = odbc_do($myDB,$query);

// Print the Results

$c = 0;
$max = odbc_num_fields($result);

while (odbc_fetch_row($result))
{
   $c = $c + 1;

{record}   for ($i = 1; $i <= $max; $i = $i + 1)
     {
       print (odbc_result($result, $i) . "<BR>");
     }
   print ("<BR><HR>");

}

)PHP";

constexpr std::string_view kUpdateRecord =
    R"PHP(   print("<H3><A HREF=update_form.php?id=" . odbc_result($result, "ID") . ">Record: " . $c . "</A></H3>");

)PHP";

constexpr std::string_view kDeleteRecord =
    R"PHP(   print("<H3><A HREF=delete.php?id=" . odbc_result($result, "ID") . ">Record: " . $c . "</A></H3>");

)PHP";

constexpr std::string_view kListedRecord = R"PHP(   print("<H3>Record: " . $c . "</H3>");
)PHP";

constexpr std::string_view kUpdateForm = R"PHP(<?

print ("<HTML>");
// This page was generated with Tagsmith by Orlwick

print ("<HEAD><TITLE>Update Form</TITLE></HEAD>");

print ("<H1>Update Form</H1><HR><BR>");
// Connect to ODBC DSN and Call the Query

$myDB = odbc_connect("{dsn}","{user}","{password}");
$query = "SELECT * FROM {table} WHERE ID=$id ";
$result = odbc_do($myDB,$query);

// Print the Results

print("<FORM Name=frmUpdate Method=POST Action=update.php?id=$id>");

$c = 0;
$max = odbc_num_fields($result);

while (odbc_fetch_row($result))
{
   $c = $c + 1;

   for ($i = 2; $i <= $max; $i = $i + 1)
     {
       print ("<B>" . odbc_field_name($result, $i) . ":</B><BR>");
       print ("<INPUT Name=" . odbc_field_name($result, $i) . " Value='" . odbc_result($result, $i) . "'></INPUT><BR><BR>");
     }
   print ("<BR>");

}

print ("<INPUT Type=SUBMIT Name=SUBMIT Value=UPDATE></INPUT>");
print ("&nbsp;&nbsp;&nbsp;");
print ("<INPUT Type=RESET Name=RESET Value=RESET></INPUT>");
print ("</FORM>");

odbc_close($myDB);

print ("<BR><HR>");
{menu link}print ("</BODY></HTML>");

?>)PHP";

constexpr std::string_view kMenu = R"(<HTML>
<!-- This page was generated with Tagsmith by Orlwick -->

<HEAD><TITLE>Menu</TITLE></HEAD>

<H1>Menu</H1><HR><BR>

{links}<BR><HR>
</BODY></HTML>)";

constexpr std::string_view kAddLink = R"(<A HREF=add_form.html>Add</A><BR><BR>
)";
constexpr std::string_view kUpdateLink = R"(<A HREF=update_listing.php>Update</A><BR><BR>
)";
constexpr std::string_view kDeleteLink = R"(<A HREF=delete_listing.php>Delete</A><BR><BR>
)";
constexpr std::string_view kListAllLink = R"(<A HREF=list_all.php>List All</A><BR><BR>

)";

// --- Putting them together ---

std::string TextIf(bool wanted, std::string_view text) {
  return wanted ? FillTemplate(text) : std::string();
}

// The text `item` for each field. A separator stands behind each field but the one that is the last
// but one token, so a list with an odd number of tokens ends in a separator.
std::string ForEachField(const PhpSite& site, std::string_view item,
                         std::string_view separator = {}) {
  const std::vector<std::string>& tokens = site.fieldArray;
  std::string text;
  for (std::size_t i = 0; i + 1 < tokens.size(); i += 2) {
    text += FillTemplate(item, {{"name", tokens[i]}});
    if (i + 2 != tokens.size()) text += separator;
  }
  return text;
}

// A PHP page of the database: connects, does what `body` says, and closes.
std::string DatabasePage(const PhpSite& site, std::string_view title, std::string_view body) {
  return FillTemplate(kHead, {{"title", title},
                              {"dsn", site.dsn},
                              {"user", site.user},
                              {"password", site.password}})
      .append(body)
      .append(FillTemplate(kTail, {{"menu link", TextIf(site.hasMenu, kPrintedMenuLink)}}));
}

std::string Listing(const PhpSite& site, std::string_view title, std::string_view record) {
  return DatabasePage(
      site, title,
      FillTemplate(kListing, {{"table", site.table}, {"record", FillTemplate(record)}}));
}

std::string AddForm(const PhpSite& site) {
  return FillTemplate(kAddForm, {{"inputs", ForEachField(site, kInput)},
                                 {"menu link", TextIf(site.hasMenu, kMenuLink)}});
}

std::string Add(const PhpSite& site) {
  return DatabasePage(site, "Add",
                      FillTemplate(kAdd, {{"table", site.table},
                                          {"defaults", ForEachField(site, kDefault)},
                                          {"columns", ForEachField(site, "{name}", ",")},
                                          {"values", ForEachField(site, "'${name}'", ",")}}));
}

std::string UpdateForm(const PhpSite& site) {
  return FillTemplate(kUpdateForm, {{"dsn", site.dsn},
                                    {"user", site.user},
                                    {"password", site.password},
                                    {"table", site.table},
                                    {"menu link", TextIf(site.hasMenu, kPrintedMenuLink)}});
}

std::string Update(const PhpSite& site) {
  return DatabasePage(
      site, "Update",
      FillTemplate(kUpdate, {{"table", site.table},
                             {"defaults", ForEachField(site, kDefault)},
                             {"pairs", ForEachField(site, "{name}='${name}'", ", ")}}));
}

}  // namespace

std::vector<std::string> SplitFields(std::string_view fields) {
  std::vector<std::string> tokens;
  if (fields.empty()) return tokens;
  std::size_t start = 0;
  for (std::size_t bar = 0; (bar = fields.find('|', start)) != std::string_view::npos;) {
    tokens.emplace_back(fields.substr(start, bar - start));
    start = bar + 1;
  }
  tokens.emplace_back(fields.substr(start));
  return tokens;
}

std::vector<GeneratedFile> AddPages(const PhpSite& site) {
  return {{"add_form.html", AddForm(site)}, {"add.php", Add(site)}};
}

std::vector<GeneratedFile> UpdatePages(const PhpSite& site) {
  return {{"update_listing.php", Listing(site, "Update Listing", kUpdateRecord)},
          {"update_form.php", UpdateForm(site)},
          {"update.php", Update(site)}};
}

std::vector<GeneratedFile> DeletePages(const PhpSite& site) {
  return {
      {"delete_listing.php", Listing(site, "Delete Listing", kDeleteRecord)},
      {"delete.php", DatabasePage(site, "Delete", FillTemplate(kDelete, {{"table", site.table}}))}};
}

std::vector<GeneratedFile> ListAllPages(const PhpSite& site) {
  return {{"list_all.php", Listing(site, "List All", kListedRecord)}};
}

std::vector<GeneratedFile> MenuPages(const PhpSite& site) {
  const std::string links = TextIf(site.hasAdd, kAddLink) + TextIf(site.hasUpdate, kUpdateLink) +
                            TextIf(site.hasDelete, kDeleteLink) +
                            TextIf(site.hasListAll, kListAllLink);
  return {{"menu.html", FillTemplate(kMenu, {{"links", links}})}};
}

}  // namespace tagsmith::generators
