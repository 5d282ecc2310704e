% Pictures from Octave: an image written by imwrite goes on a blank slide and
% in place of the picture placeholder of "Title and Picture".
png = fullfile (pwd, 'gradient.png');
imwrite (uint8 (repmat (0:255, 120, 1)), png);

out = fullfile (pwd, 'pictures.pptx');
p = deckforge.ppt.Presentation (out);
s = p.add ('Blank');
pic = s.add (deckforge.ppt.Picture (png));
assert (strcmp (pic.Path, png));
pic.X = '1in';
pic.Y = '1in';

s2 = p.add ('Title and Picture');
p.replace ('Title', 'A gradient');
holders = s2.find ('Picture');
placed = holders{1}.replace (deckforge.ppt.Picture (png));
assert (isa (placed, 'deckforge.ppt.Picture'));
now = s2.find ('Picture');
assert (isequal (now{1}, placed));

% A placeholder that gave up its place can't take text any more.
expect_error (@() holders{1}.replace ('text'), 'deckforge:ppt_error:placeholderWasReplacedByObject');
% A picture can stand on one slide only.
expect_error (@() s2.add (pic), 'deckforge:ppt_error:failedToAppendChild');

assert (p.close ());
