% Tables from Octave values: a cell array under bold header paragraphs, a
% matrix, a struct array; tables in place of placeholders; and subscripts.
out = fullfile (pwd, 'tables.pptx');
p = deckforge.ppt.Presentation (out);
run = @(t, r, c) t.entry (r, c).Children{1}.Children{1}.Content;

names = {'Fruit', 'Count', 'Share'};
head = cell (1, 3);
for k = 1:3
  head{k} = deckforge.ppt.Paragraph (names{k});
  head{k}.Bold = true;
end
t = deckforge.ppt.Table ([head; {'apples', 12, 0.25}; {'pears', NaN, true}]);
assert (t.NCols == 3 && numel (t.Children) == 3);
assert (isequal (t.entry (1, 2).Children{1}, head{2}));   % the object itself
assert (isequal (run (t, 2, 2), 12) && strcmp (run (t, 2, 3), '0.25'));
assert (strcmp (run (t, 3, 2), 'NaN') && isequal (run (t, 3, 3), 1));

expect_error (@() t.row (0), 'deckforge:ppt_error:positiveSubscript');
expect_error (@() t.row (4), 'deckforge:ppt_error:badRowSubscript');
expect_error (@() t.entry (4, 1), 'deckforge:ppt_error:badRowSubscript');
expect_error (@() t.entry (1, 4), 'deckforge:ppt_error:badColSubscript');
expect_error (@() deckforge.ppt.Table (@sin), 'deckforge:ppt_error:invalidConstructorArg');

% Records: a header row of the field names, a row per element.
sales = struct ('Region', {'North', 'South'}, 'Sales', {1200, 950.5});
ts = deckforge.ppt.Table (sales);
assert (ts.NCols == 2 && numel (ts.Children) == 3);
assert (strcmp (run (ts, 1, 2), 'Sales') && strcmp (run (ts, 3, 2), '950.5'));

m = deckforge.ppt.Table (magic (3));
m.StyleName = 'Light Lines';
m.ColSpecs = {deckforge.ppt.ColSpec('3cm'), 'not a ColSpec', deckforge.ppt.ColSpec('2cm')};
specs = m.ColSpecs;
assert (numel (specs) == 2 && strcmp (specs{2}.Width, '2cm'));
expect_error (@() set_property (m, 'ColSpecs', 5), 'deckforge:ppt_error:invalidPropertyValue');

cell23 = t.entry (2, 3);
cell23.HAlign = 'center';
s = p.add ('Title and Table');
s.replace ('Title', 'From a cell array');
placed = s.find ('Table'){1}.replace (t);
assert (isa (placed, 'deckforge.ppt.Table') && placed.NCols == 3);

s = p.add ('Title and Content');
s.replace ('Title', 'From a struct array');
s.find ('Content'){1}.replace (sales);
now = s.find ('Content');
assert (isa (now{1}, 'deckforge.ppt.Table') && numel (now{1}.Children) == 3);

s = p.add ('Title Only');
s.replace ('Title', 'A magic square');
s.add (m);

if ! isempty (pkg ('list', 'dataframe'))
  pkg load dataframe
  df = dataframe ({1, 'a'; 2, 'b'}, 'colnames', {'n', 'txt'});
  td = deckforge.ppt.Table (df);
  assert (td.NCols == 2 && strcmp (run (td, 1, 2), 'txt') && strcmp (run (td, 3, 2), 'b'));
end

big = deckforge.ppt.Table (num2cell (reshape (1:30000, 10000, 3)));
assert (big.NCols == 3 && isequal (run (big, 10000, 3), 30000));

p.close ();
unzip (out, fullfile (pwd, 'unpacked'));
slide3 = fileread (fullfile (pwd, 'unpacked', 'ppt', 'slides', 'slide3.xml'));
assert (! isempty (strfind (slide3, '{83719924-2EDA-4336-83F3-41D03204C820}')), 'style not by its id');

% Cells from numbers are right-aligned, text and logicals are not, and an
% alignment set on the entry wins.
slide1 = fileread (fullfile (pwd, 'unpacked', 'ppt', 'slides', 'slide1.xml'));
cells = regexp (slide1, '<a:tc>.*?</a:tc>', 'match');
right = ! cellfun (@isempty, strfind (cells, 'algn="r"'));
assert (isequal (right, [false false false, false true false, false true false]), ...
        'right-aligned cells: %s', mat2str (right));
assert (! isempty (strfind (cells{6}, 'algn="ctr"')));
