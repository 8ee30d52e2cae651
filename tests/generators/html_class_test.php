<?php
// The PHP class beside the program: php html_class_test.php <root of the sources>
error_reporting(E_ALL);
set_error_handler(function (int $level, string $text, string $file, int $line) {
    throw new ErrorException($text, 0, $level, $file, $line);
});

$root = realpath($argv[1]);
chdir("$root/data");
include("./html_class.inc");
$failures = 0;

function Check(string $what, string $expected, string $got): void
{
    if ($expected !== $got) {
        $GLOBALS['failures']++;
        echo "$what\n  expected: ", json_encode($expected), "\n  got:      ", json_encode($got), "\n";
    }
}

/** What the code prints and, unless it writes by itself, what its $b has collected. */
function Run(string $code): string
{
    $b = new HTML;
    ob_start();
    try {
        eval($code);
        $b->WriteHTML();
    } catch (Throwable $problem) {
        echo get_class($problem), ': ', $problem->getMessage();
    }
    return ob_get_clean();
}

// What the documentation's examples leave out: calls without arguments, line ends, hostile values.
$calls = [
    '$b->A();' => '<A></A>',
    '$b->BR();' => "<BR>\n",
    '$b->BR(-1);' => '',
    '$b->HR();' => "<HR>\n",
    '$b->Closing();' => "</BODY>\n</HTML>\n",
    '$b->DL();' => "<DL>\n</DL>\n",
    '$b->H();' => "<H1></H1>\n",
    '$b->IMG();' => '<IMG Src="" Alt="">',
    '$b->Marquee();' => "<MARQUEE></MARQUEE>\n",
    '$b->NBSP();' => '&nbsp;',
    '$b->OL();' => "<OL>\n</OL>\n",
    '$b->P();' => "<P></P>\n",
    '$b->Select();' => "<SELECT>\n</SELECT>\n",
    '$b->TD();' => "          <TD></TD>\n",
    '$b->TR();' => "     <TR>\n     </TR>\n",
    '$b->UL();' => "<UL>\n</UL>\n",
    '$b->WriteHTML();' => '',
    '$b->P(["Größe", null, 0, "\xff"]);' => "<P>Größe0\u{FFFD}</P>\n",
    '$b->P("x")->P($b);' => "<P>x</P>\n<P><P>x</P>\n</P>\n",
    '$b->IMG("a\"b", attributes: ["ALT" => "<"]);' => '<IMG Src="a&quot;b" ALT="&lt;">',
    '$b->Select("n", [5 => "five", 0 => "none"], 0);' => "<SELECT Name=\"n\">\n"
        . "   <OPTION Value=\"5\">five</OPTION>\n   <OPTION Value=\"0\" Selected>none</OPTION>\n</SELECT>\n",
    '$b->Opening("p><script");' =>
        'InvalidArgumentException: "p><script" is not the name of an element.',
    '$b->P("x", ["a=1 b" => 2]);' =>
        'InvalidArgumentException: "a=1 b" is not the name of an attribute.',
    '$b->H("x", 7);' => 'InvalidArgumentException: A heading has a level from 1 to 6, not 7.',
];
foreach ($calls as $code => $markup) {
    Check($code, $markup, Run($code));
}

// Every statement that the program inserts.
$catalog = file_get_contents("$root/src/toolbars/catalogs/HtmlClassCatalog.cpp");
preg_match_all('/^ {4}("(?:[^"\\\\]|\\\\.)*"),$/m', $catalog, $statements);
Check('statements in the catalog', '19', (string) count($statements[1]));
foreach (array_map('json_decode', $statements[1]) as $statement) {
    Check("the catalog's $statement", '', preg_grep('/Error|Exception/', [Run($statement)])[0] ?? '');
}

// Every example of the documentation, the last of which is a whole page.
$text = str_replace("\r\n", "\n", file_get_contents('html_class_documentation.txt'));
Check('lines over 78 columns', '', preg_match('/^.{79,}$/m', $text, $long) ? $long[0] : '');
$block = '\n\n((?: {5}.*\n|\n(?= {5}))+)';
preg_match_all("/^Example:$block\nWrites:$block/m", $text, $examples, PREG_SET_ORDER);
Check('examples', (string) substr_count($text, "\nExample:\n"), (string) count($examples));
$written = '';
foreach ($examples as [, $code, $markup]) {
    [$code, $markup] = preg_replace('/^ {5}/m', '', [$code, $markup]);
    $written = Run(str_starts_with($code, '<?php') ? "?>$code" : $code);
    Check($code, rtrim($markup), rtrim($written));
}
$page = tempnam(sys_get_temp_dir(), 'page');
file_put_contents($page, $written);
exec('tidy -e -q ' . escapeshellarg($page) . ' 2>&1', $complaints, $status);
unlink($page);
if ($status === 127) {
    echo "tidy is not installed: the page is not checked\n";
} elseif ($status > 1) {
    Check('tidy', '', implode("\n", $complaints));
}

exit($failures === 0 ? 0 : 1);
