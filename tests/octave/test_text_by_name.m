% Text, lists and paragraphs reach boxes and placeholders by name, and the
% objects found are the same script objects each time.
1;   % a script: the helper below must come first

function texts = paragraph_texts (box)
  % The text of each paragraph of a box: one string for one paragraph.
  kids = box.Children;
  if isempty (kids), kids = {}; end
  texts = cell (1, numel (kids));
  for i = 1:numel (kids)
    runs = kids{i}.Children;
    if isempty (runs), runs = {}; end
    texts{i} = strjoin (cellfun (@(r) num2str (r.Content), runs, 'UniformOutput', false), '');
  end
  if numel (texts) == 1, texts = texts{1}; end
end

p = deckforge.ppt.Presentation (fullfile (pwd, 'byname.pptx'));
s1 = p.add ('Title and Content');
s2 = p.add ('Title and Content');

hits = p.find ('Title');
assert (iscell (hits) && isequal (size (hits), [1 2]));
assert (hits{1}.Parent == s1 && hits{2}.Parent == s2);
assert (hits{1} == s1.find ('Title'){1});
assert (hits{1}.Parent == hits{1}.Parent);
assert (isempty (p.find ('No such shape')) && isempty (s1.find ('No such shape')));
assert (isa (hits{1}, 'deckforge.ppt.TextBoxPlaceholder') && isa (hits{1}, 'deckforge.ppt.BaseTextBox'));
c1 = s1.find ('Content'){1};
c2 = s2.find ('Content'){1};
assert (isa (c1, 'deckforge.ppt.ContentPlaceholder') && isa (c1, 'deckforge.ppt.PicturePlaceholder'));

% Text by name: every hit; on a slide, only that slide's.
p.replace ('Title', 'Both');
s2.replace ('Title', 'Second');
assert (strcmp (paragraph_texts (hits{1}), 'Both') && strcmp (paragraph_texts (hits{2}), 'Second'));
s1.add ('Title', 'and more');
assert (isequal (paragraph_texts (hits{1}), {'Both', 'and more'}));

% Lists: nested cell arrays go a level deeper; a Paragraph in a list keeps its
% runs but takes the level of its depth; logicals and [] are blank lines.
deep = deckforge.ppt.Paragraph ('deep', 7);
p.replace ('Content', {'a', {'b', {deep}}, 2.5, true, []});
kids = c1.Children;
assert (isequal (paragraph_texts (c1), {'a', 'b', 'deep', '2.5', '', ''}));
levels = cellfun (@(k) double (k.Level), kids, 'UniformOutput', false);
assert (isequal (levels, {[], 2, 3, [], [], []}));
assert (kids{3} == deep && deep.Level == 3);       % the first box took the object
assert (c2.Children{3} ~= deep);                   % the second a copy
assert (isequal (paragraph_texts (c2), paragraph_texts (c1)));

% Box methods: text and Paragraph forms return the paragraph that stands there.
r = c1.replace ('one');
assert (isa (r, 'deckforge.ppt.Paragraph') && r.Parent == c1 && numel (c1.Children) == 1);
r2 = c1.add ('two');
assert (r2 == c1.Children{2});
before = numel (c1.Children);
c1.add (5); c1.add (true); c1.add ({}); c1.add ([]);    % no list: nothing to add
assert (numel (c1.Children) == before);
c1.add ({'three', {'three.1'}});
assert (isequal (paragraph_texts (c1), {'one', 'two', 'three', 'three.1'}));
copy = c2.replace (r);            % r stands in c1: c2 takes a copy
assert (copy ~= r && copy.Parent == c2 && r.Parent == c1);
expect_error (@() c2.add (r), 'deckforge:ppt_error:failedToAppendChild');
c1.replace ({});                  % a content placeholder takes "nothing" as no change
assert (numel (c1.Children) == 4);
expect_error (@() hits{1}.replace ({}), 'deckforge:ppt_error:invalidReplaceArg');
expect_error (@() hits{1}.replace (5), 'deckforge:ppt_error:invalidReplaceArg');
expect_error (@() p.replace ('Title', 5), 'deckforge:ppt_error:invalidReplaceArg');
expect_error (@() p.replace ('Title', {}), 'deckforge:ppt_error:invalidReplaceArg');
p.replace ('No such shape', 5);   % no hit, no error

% Runs: a paragraph's append hands back the run itself.
para = deckforge.ppt.Paragraph ('Read ');
link = para.append (deckforge.ppt.ExternalLink ('https://example.com/a', 'this'));
assert (isa (link, 'deckforge.ppt.ExternalLink') && isa (link, 'deckforge.ppt.Text'));
assert (link == para.Children{2} && link.Parent == para);
tail = para.append ('.');
tail.Content = '!';
assert (strcmp (para.Children{3}.Content, '!'));
link.Target = 'https://example.com/b';
assert (strcmp (para.Children{2}.Target, 'https://example.com/b'));
t = deckforge.ppt.Text (2.5);
assert (t.Content == 2.5);
t.Content = 'abc';   assert (strcmp (t.Content, 'abc'));
t.Content = true;    assert (t.Content == 1);
t.Content = uint32 (7); assert (t.Content == 7);
t.Content = [];      assert (ischar (t.Content) && isempty (t.Content));
q = deckforge.ppt.Paragraph (t, 2);
assert (q.Children{1} == t && q.Level == 2 && isa (q.Level, 'uint32'));
q.Level = [];
assert (isempty (q.Level));
assert (isempty (deckforge.ppt.Paragraph ().Children));

% A free text box: placed in given units, then put on a slide.
box = deckforge.ppt.TextBox ();
assert (isempty (box.X) && isempty (box.Parent));
box.Name = 'Note';
box.X = '2.5cm'; box.Y = '1in'; box.Width = '300px'; box.Height = '72pt';
assert (strcmp (box.X, '2.5cm') && strcmp (box.Height, '72pt'));
box.Height = [];
assert (isempty (box.Height));
box.add ('free');
placed = s1.add (box);
assert (placed == box && box.Parent == s1 && s1.find ('Note'){1} == box);
expect_error (@() s2.add (box), 'deckforge:ppt_error:failedToAppendChild');
p.replace ('Note', {'x', {'y'}});
assert (isequal (paragraph_texts (box), {'x', 'y'}));

assert (p.close ());
