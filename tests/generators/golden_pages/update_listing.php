<?

// This page was generated with Tagsmith by Orlwick

print ("<HTML>");
print ("<HEAD><TITLE>Update Listing</TITLE></HEAD>");

print ("<H1>Update Listing</H1><HR><BR>");

// Connect to ODBC DSN and Call the Query

$myDB = odbc_connect("staff","ann","sécret");
$query = "SELECT * FROM people";
$result = odbc_do($myDB,$query);

// Print the Results

$c = 0;
$max = odbc_num_fields($result);

while (odbc_fetch_row($result))
{
   $c = $c + 1;

   print("<H3><A HREF=update_form.php?id=" . odbc_result($result, "ID") . ">Record: " . $c . "</A></H3>");

   for ($i = 1; $i <= $max; $i = $i + 1)
     {
       print (odbc_result($result, $i) . "<BR>");
     }
   print ("<BR><HR>");

}

odbc_close($myDB);

print ("<BR>");
print ("<A HREF=menu.html>Back To The Menu</A>");

print ("</BODY></HTML>");

?>
