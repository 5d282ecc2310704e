% Native charts: every type, a combo on a secondary axis, charts from a
% struct array and a dataframe, one in a content placeholder; the deck
% passes the schema and the compatibility checks, and the chart parts and
% workbooks hold the values.
[out, n, have_df] = chart_deck (pwd);
values = [3 5 2; 4 NaN 3; 6 7 1; 2 4 5];
types = 12;
c = deckforge.ppt.Chart ('column', [120 0.12; 150 0.18; 90 0.07]);
expect_error (@() deckforge.ppt.Chart ('radar', values), 'deckforge:ppt_error:invalidChartType');
expect_error (@() deckforge.ppt.Chart ('pie', values), 'deckforge:ppt_error:chartNeedsOneSeries');
expect_error (@() deckforge.ppt.Chart ('scatter', [1; 2]), 'deckforge:ppt_error:chartNeedsXColumn');
expect_error (@() deckforge.ppt.Chart ('column', {'a', 'b'}), 'deckforge:ppt_error:invalidChartValues');
expect_error (@() deckforge.ppt.Chart ('column', []), 'deckforge:ppt_error:invalidChartValues');
expect_error (@() deckforge.ppt.Chart ('column', values, {'a'}), 'deckforge:ppt_error:chartPropertySize');
expect_error (@() set_property (c, 'SeriesNames', {'one'}), 'deckforge:ppt_error:chartPropertySize');
expect_error (@() set_property (c, 'Legend', 'middle'), 'deckforge:ppt_error:invalidPropertyValue');
expect_error (@() set_property (c, 'Colors', {'red', 'nocolour'}), 'deckforge:ppt_error:invalidPropertyValue');
b = deckforge.ppt.Chart ('bar', values);
expect_error (@() set_property (b, 'SecondaryAxis', [true false false]), ...
              'deckforge:ppt_error:chartHasNoSecondaryAxis');
check_deck (out);

% Each chart part caches its values with their format, and points into a
% workbook that holds the same numbers.
dir_ = fullfile (pwd, 'unpacked');
if exist (dir_, 'dir'), confirm_recursive_rmdir (false, 'local'); rmdir (dir_, 's'); end
unzip (out, dir_);
charts = dir (fullfile (dir_, 'ppt', 'charts', 'chart*.xml'));
assert (numel (charts) == n);
combo = fileread (fullfile (dir_, 'ppt', 'charts', sprintf ('chart%d.xml', types + 1)));
assert (! isempty (strfind (combo, '<c:lineChart>')) && ! isempty (strfind (combo, '<c:barChart>')));
assert (! isempty (strfind (combo, '<c:formatCode>0.0</c:formatCode>')));
assert (! isempty (strfind (combo, '<c:crosses val="max"/>')));
first = fileread (fullfile (dir_, 'ppt', 'charts', 'chart1.xml'));
assert (! isempty (strfind (first, '<c:f>Sheet1!$C$2:$C$5</c:f>')));
assert (isempty (strfind (first, '<c:pt idx="1"><c:v>NaN')), 'a gap is no point');
assert (! isempty (strfind (first, 'schemeClr val="accent2"')), 'theme accents by default');
pie = fileread (fullfile (dir_, 'ppt', 'charts', 'chart10.xml'));
assert (! isempty (strfind (pie, '<c:v>a &amp; b</c:v>')) && ! isempty (strfind (pie, 'srgbClr val="00AA00"')));
slide = fileread (fullfile (dir_, 'ppt', 'slides', sprintf ('slide%d.xml', types + 1)));
assert (! isempty (strfind (slide, '<p:ph')) && ! isempty (strfind (slide, 'drawingml/2006/chart')));

books = dir (fullfile (dir_, 'ppt', 'embeddings', '*.xlsx'));
assert (numel (books) == numel (charts));
for k = 1:numel (books)                      % every workbook opens and holds numbers
  into = fullfile (pwd, 'books', books(k).name);
  unzip (fullfile (dir_, 'ppt', 'embeddings', books(k).name), into);
  assert (! isempty (strfind (fileread (fullfile (into, 'xl', 'worksheets', 'sheet1.xml')), '<v>')));
end
rels = fileread (fullfile (dir_, 'ppt', 'charts', '_rels', 'chart1.xml.rels'));
book = regexp (rels, 'embeddings/([^"]+\.xlsx)', 'tokens', 'once'){1};
sheet = fileread (fullfile (pwd, 'books', book, 'xl', 'worksheets', 'sheet1.xml'));
assert (! isempty (strfind (sheet, '<c r="D4"')) && isempty (strfind (sheet, '<c r="C3"')), 'chart 1: %s', sheet);

% LibreOffice draws every slide.
if isempty (getenv ('DECKFORGE_NO_OFFICE')) && system ('command -v soffice >/dev/null 2>&1') == 0
  [status, output] = system (sprintf ('cd "%s" && soffice --headless --convert-to pdf "%s" >/dev/null 2>&1 && pdfinfo charts.pdf', pwd, out));
  pages = regexp (output, 'Pages:\s+(\d+)', 'tokens', 'once');
  assert (status == 0 && str2double (pages{1}) == n, 'pdf: %s', output);
end

% A real template's chart placeholder takes a chart, by role and as a node;
% the colours come from that template's theme.
tpl = fullfile (fileparts (mfilename ('fullpath')), '..', '..', '..', 'shared', 'real-templates', ...
                'ppt2007_aascu-leadership-6masters.pptx');
if exist (tpl, 'file')
  real = fullfile (pwd, 'chart-placeholder.pptx');
  p = deckforge.ppt.Presentation (real, tpl);
  s = p.add ('Title and Chart');
  ph = s.find ('Chart');
  assert (isa (ph{1}, 'deckforge.ppt.ChartPlaceholder'));
  assert (isa (ph{1}.replace (deckforge.ppt.Chart ('line', [1 3; 2 5])), 'deckforge.ppt.Chart'));
  s = p.add ('Title and Chart');
  s.replace ('Chart', deckforge.ppt.Chart ('pie', [1; 2; 3]));
  p.add ('Title and Chart');                 % left alone, the placeholder stays
  p.close ();
  check_deck (real, tpl);
end
