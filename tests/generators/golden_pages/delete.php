<?

// This page was generated with Tagsmith by Orlwick

print ("<HTML>");
print ("<HEAD><TITLE>Delete</TITLE></HEAD>");

print ("<H1>Delete</H1><HR><BR>");

// Connect to ODBC DSN and Call the Query

$myDB = odbc_connect("staff","ann","sécret");

$query = "DELETE FROM people WHERE ID=$id ";

if ($junk = odbc_exec($myDB,$query)) {
     print ("<H3>The Record Was Deleted</H3>");
} else {
     print ("<H3>There Was An Error.  The Record Was Not Deleted</H3>");
}

odbc_close($myDB);

print ("<BR>");
print ("<A HREF=menu.html>Back To The Menu</A>");

print ("</BODY></HTML>");

?>
