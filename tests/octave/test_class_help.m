% Every class's help prints on this Octave, in Octave's type words, and ends
% with an example; each example also runs as the file's test block.
root = fileparts (which ('deckforge.ppt.Presentation'));
files = dir (fullfile (root, '*.m'));
classes = 0;
for k = 1:numel (files)
  name = ['deckforge.ppt.' files(k).name(1:end-2)];
  if isempty (regexp (fileread (fullfile (root, files(k).name)), '^classdef', 'lineanchors', 'once'))
    continue;   % a function of the package, such as preview
  end
  classes += 1;
  text = evalc (['help ' name]);
  assert (isempty (strfind (text, 'is not documented')), '%s: no help', name);
  assert (~isempty (strfind (text, ['Class ' name])), '%s: help without its class line', name);
  assert (~isempty (regexp (text, 'Example:\n(\s+\S.*\n)+\s*$', 'once')), '%s: help does not end with an example', name);
  assert (isempty (regexp (text, 'HobjFactoryString|host array|\<any\)|deckforge\.ppt\.\w+ scalar', 'once')), ...
          '%s: help names an internal type:\n%s', name, text);
  [ok, count] = test (fullfile (root, files(k).name), 'quiet');
  assert (ok == count && count == 1, '%s: its example failed', name);
end
assert (classes > 40);

text = evalc ('help deckforge.ppt.Presentation');
assert (~isempty (strfind (text, 'A presentation built on a template')));
assert (~isempty (strfind (text, 'char row vector or string')));

% Method help, once the class's members run natively, still comes from the
% classdef file.
para = deckforge.ppt.Paragraph ('x');
para.append (deckforge.ppt.Text ('y'));
text = evalc ('help deckforge.ppt.Paragraph.append');
assert (~isempty (strfind (text, 'append(')) && isempty (strfind (text, 'is a built-in function')), text);
