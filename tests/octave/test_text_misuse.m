% Misuse of the text and box classes is refused with an identifier, and
% the objects stay usable.
p = deckforge.ppt.Presentation (fullfile (pwd, 'misuse.pptx'));
s = p.add ('Title and Content');
c = s.find ('Content'){1};
title = s.find ('Title'){1};
para = deckforge.ppt.Paragraph ('x');
box = deckforge.ppt.TextBox ();
str = 'QUORIX:string:MustBeStringScalarOrCharacterVector';

% Empty and non-scalar object arguments, and objects of the wrong class.
expect_error (@() s.add ([]), 'deckforge:ppt_error:emptyPPTObjArrayError');
expect_error (@() s.add ({box, box}), 'deckforge:ppt_error:nonscalarPPTObjArrayError');
expect_error (@() s.add (para), 'deckforge:dom_error:fromQUORIXMarshallingError');
expect_error (@() s.add (c), 'deckforge:dom_error:fromQUORIXMarshallingError');
expect_error (@() deckforge.ppt.Paragraph (para), str);
expect_error (@() para.append ([]), str);
expect_error (@() para.append (5), str);
expect_error (@() c.replace (deckforge.ppt.Text ('run')), 'deckforge:ppt_error:invalidReplaceArg');
expect_error (@() c.add (@sin), 'deckforge:ppt_error:invalidAddArg');
expect_error (@() p.replace (5, {'a'}), str);

% 2-by-3 character arrays are no text, wherever text goes.
m = ['abc'; 'def'];
expect_error (@() c.add (m), str);
expect_error (@() c.replace (m), str);
expect_error (@() c.add ({'ok', m}), str);
expect_error (@() p.replace ('Title', m), str);
expect_error (@() s.add ('Title', m), str);
expect_error (@() deckforge.ppt.Text (m), str);
expect_error (@() deckforge.ppt.ExternalLink ('https://example.com', m), str);
expect_error (@() set_property (box, 'Name', m), str);
expect_error (@() set_property (box, 'X', m), str);
expect_error (@() set_property (para.Children{1}, 'Content', m), str);

% Values of the wrong kind for properties.
expect_error (@() set_property (box, 'X', 5), str);
expect_error (@() set_property (box, 'Width', '3 parsecs'), 'deckforge:dom_error:invalidDimensionUnits');
expect_error (@() set_property (para.Children{1}, 'Content', {1}), 'deckforge:ppt_error:invalidPropertyValue');
expect_error (@() set_property (para.Children{1}, 'Content', [1 2]), 'deckforge:ppt_error:invalidPropertyValue');
expect_error (@() set_property (para, 'Level', 'a'), 'deckforge:ppt_error:invalidPropertyValue');
assert (isempty (box.Width));   % a refused length leaves the old value

% NaN: a number for Content; no level for Level, as the host's uint32 has it.
t = para.Children{1};
t.Content = NaN;
assert (isnan (t.Content));
para.Level = NaN;
assert (para.Level == 0);
para.Level = 2.6;
assert (para.Level == 3);

% A run or paragraph stands in one place only.
expect_error (@() deckforge.ppt.Paragraph (t), 'deckforge:ppt_error:failedToAppendChild');
expect_error (@() deckforge.ppt.Paragraph ('y').append (t), 'deckforge:ppt_error:failedToAppendChild');
c.add (para);
expect_error (@() title.add (para), 'deckforge:ppt_error:failedToAppendChild');

% Deleted objects, as arguments, as list items and as targets.
gone = deckforge.ppt.Paragraph ('gone');
delete (gone);
expect_error (@() c.add (gone), 'QUORIX:class:InvalidHandle');
expect_error (@() c.add ({'a', gone}), 'QUORIX:class:InvalidHandle');
expect_error (@() gone.append ('x'), 'QUORIX:class:InvalidHandle');
expect_error (@() gone.Level, 'QUORIX:class:InvalidHandle');
dead = deckforge.ppt.TextBox ();
delete (dead);
expect_error (@() s.add (dead), 'QUORIX:class:InvalidHandle');
expect_error (@() set_property (dead, 'X', '1in'), 'QUORIX:class:InvalidHandle');

% After close, the tree still takes changes but the file no longer does,
% and a second close is refused.
c.replace ('final');
assert (p.close ());
written = fileread (fullfile (pwd, 'misuse.pptx'));
c.replace ('too late');
s.replace ('Title', 'too late');
p.add ('Title Slide');
assert (~p.close ());
assert (strcmp (fileread (fullfile (pwd, 'misuse.pptx')), written));
