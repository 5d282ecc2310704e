% The example deck builds from scratch and passes the schema check.
here = fileparts (mfilename ('fullpath'));
root = fileparts (fileparts (here));
warning ('off', 'Octave:shadowed-function');   % the example's name is Octave's demo
addpath (fullfile (root, 'examples'));
deck = demo (fullfile (pwd, 'out'), false);
assert (exist (deck, 'file') == 2, 'no deck at %s', deck);

% Five slides, in the order the example adds them.
p = deckforge.ppt.Presentation (fullfile (pwd, 'reread.pptx'), deck);
p.open ();
slides = p.Children;
layouts = cellfun (@(s) s.Layout, slides, 'UniformOutput', false);
assert (isequal (layouts, {'Title Slide', 'Title and Content', 'Title and Content', ...
                           'Section Header', 'Title Only'}), strjoin (layouts, ', '));

validator = fullfile (root, '..', 'shared', 'ooxml-schemas', 'validate-pptx');
if exist (validator, 'file') ~= 2
  printf ('schema check skipped: %s not found\n', validator);
  return;
end
[status, output] = system (sprintf ('"%s" "%s" 2>&1', validator, deck));
assert (status == 0, 'validate-pptx failed:\n%s', output);
