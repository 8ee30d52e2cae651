<?

print ("<HTML>");
// This page was generated with Tagsmith by Orlwick

print ("<HEAD><TITLE>Update Form</TITLE></HEAD>");

print ("<H1>Update Form</H1><HR><BR>");
// Connect to ODBC DSN and Call the Query

$myDB = odbc_connect("staff","ann","sécret");
$query = "SELECT * FROM people WHERE ID=$id ";
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
print ("<A HREF=menu.html>Back To The Menu</A>");

print ("</BODY></HTML>");

?>
