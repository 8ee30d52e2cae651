<?

// This page was generated with Tagsmith by Orlwick

print ("<HTML>");
print ("<HEAD><TITLE>Add</TITLE></HEAD>");

print ("<H1>Add</H1><HR><BR>");

// Connect to ODBC DSN and Call the Query

$myDB = odbc_connect("staff","ann","sécret");

if ($FirstName == "") $FirstName = " ";
if ($LastName == "") $LastName = " ";
if ($Age == "") $Age = " ";

$query = "INSERT INTO people (FirstName,LastName,Age) VALUES ('$FirstName','$LastName','$Age') ";

if ($junk = odbc_exec($myDB,$query)) {
     print ("<H3>The Record Was Added</H3>");
} else {
     print ("<H3>There Was An Error.  The Record Was Not Added</H3>");
}

odbc_close($myDB);

print ("<BR>");
print ("<A HREF=menu.html>Back To The Menu</A>");

print ("</BODY></HTML>");

?>
