% A deck on the default template, built and closed from script code.
out = fullfile (pwd, 'deck.pptx');
if exist (out, 'file')
  delete (out);
end
p = deckforge.ppt.Presentation (out);
assert (strcmp (p.OutputPath, out), p.OutputPath);
masters = p.getMasterNames ();
assert (iscell (masters) && ~isempty (masters));
layouts = p.getLayoutNames (masters{1});
assert (iscellstr (layouts) && ~isempty (layouts));
styles = p.getTableStyleNames ();
assert (iscell (styles) && (isempty (styles) || size (styles, 2) == 2));

s1 = p.add (layouts{1});
assert (isa (s1, 'deckforge.ppt.Slide'));
assert (strcmp (s1.Layout, layouts{1}));
assert (s1.Parent == p);
kids = p.Children;
assert (iscell (kids) && numel (kids) == 1 && kids{1} == s1);

% 1-based indexes: before the first; 0 and past the end are refused.
s0 = p.add (layouts{1}, 1);
kids = p.Children;
assert (kids{1} == s0 && kids{2} == s1);
expect_error (@() p.add (layouts{1}, 0), 'deckforge:ppt_error:positiveSubscript');
expect_error (@() p.add (layouts{1}, 1.5), 'deckforge:ppt_error:positiveSubscript');
expect_error (@() p.add (layouts{1}, 3), 'deckforge:ppt_error:badSlideSubscript');
s2 = p.add (layouts{1}, s1);
kids = p.Children;
assert (numel (kids) == 3 && kids{2} == s2);
expect_error (@() p.add ('No such layout'), 'deckforge:ppt_error:invalidLayoutName');
d = deckforge.ppt.MessageDispatcher.getTheDispatcher ();
expect_error (@() p.add (layouts{1}, masters{1}, d), 'deckforge:dom_error:fromQUORIXMarshallingError');

s1.Name = 'Closing';
assert (strcmp (s1.Name, 'Closing'));
assert (iscell (p.find ('No such name')) || isempty (p.find ('No such name')));

assert (p.close ());
assert (exist (out, 'file') == 2);
info = dir (out);
assert (info.bytes > 1000);

