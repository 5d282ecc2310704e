% Removing, moving and duplicating slides, speaker notes and core
% properties, read back by the engine, checked against the schemas and
% rendered by LibreOffice; and the same script twice under SOURCE_DATE_EPOCH
% gives the same bytes.
setenv ('SOURCE_DATE_EPOCH', '1700000000');
mkdir ('one'); mkdir ('two');
[deck, titles, notes] = edited_deck (fullfile (pwd, 'one'), '');
again = edited_deck (fullfile (pwd, 'two'), '');
bytes = @(f) fread (fopen (f), Inf, 'uint8=>uint8');
assert (isequal (bytes (deck), bytes (again)), 'two runs under SOURCE_DATE_EPOCH differ');
fclose all;

% The deck as a template: the slides in order, their notes, the properties.
r = deckforge.ppt.Presentation (fullfile (pwd, 'reread.pptx'), deck);
open (r);
assert (numel (r.Children), numel (titles));
for k = 1:numel (notes)
  assert (strcmp (r.Children{k}.Notes, notes{k}), 'slide %d has notes "%s"', k, r.Children{k}.Notes);
end
props = r.Properties;
assert (strcmp (props.Title, 'Edited deck') && strcmp (props.Author, 'A. Engineer'));
assert (strcmp (props.Modified, '2023-11-14T22:13:20Z'));

% Errors: a slide of another deck, a removed one, an index past the end,
% a field that isn't one, a date that isn't ISO 8601.
other = deckforge.ppt.Presentation (fullfile (pwd, 'other.pptx'));
foreign = other.add ('Title Slide');
expect_error (@() r.remove (foreign), 'deckforge:ppt_error:slideNotInPresentation');
gone = r.Children{end};
r.remove (gone);
expect_error (@() r.move (gone, 1), 'deckforge:ppt_error:slideNotInPresentation');
expect_error (@() r.move (r.Children{1}, 9), 'deckforge:ppt_error:badSlideSubscript');
expect_error (@() r.duplicate (r.Children{1}, 9), 'deckforge:ppt_error:badSlideSubscript');
expect_error (@() set_property (r, 'Properties', struct ('Owner', 'x')), ...
              'deckforge:ppt_error:unknownPropertiesField');
expect_error (@() set_property (r, 'Properties', struct ('Created', 'yesterday')), ...
              'deckforge:ppt_error:invalidPropertyValue');
assert (strcmp (r.Properties.Title, 'Edited deck'));

% A real template with slides, notes, charts and pictures: the same script
% twice gives the same bytes there too.
shared = fullfile (fileparts (mfilename ('fullpath')), '..', '..', '..', 'shared');
decks = {deck};
real = fullfile (shared, 'real-templates', 'pythonpptx_default-generated.pptx');
if exist (real, 'file')
  mkdir ('three'); mkdir ('four');
  decks{end+1} = edited_deck (fullfile (pwd, 'three'), real);
  assert (isequal (bytes (decks{end}), bytes (edited_deck (fullfile (pwd, 'four'), real))), ...
          'two runs on a real template under SOURCE_DATE_EPOCH differ');
  fclose all;
end
check_deck (decks{1});
if numel (decks) > 1
  check_deck (decks{2}, real);
end
[noOffice, ~] = system ('command -v soffice && command -v pdfinfo');
if noOffice == 0 && isempty (getenv ('DECKFORGE_NO_OFFICE'))
  profile = ['file://' fullfile(pwd, 'lo-profile')];
  [status, output] = system (sprintf ('soffice -env:UserInstallation=%s --headless --convert-to pdf --outdir "%s" "%s" 2>&1', ...
                                      profile, pwd, deck));
  assert (status == 0, 'soffice:\n%s', output);
  [~, info] = system (sprintf ('pdfinfo "%s"', fullfile (pwd, 'edited.pdf')));
  assert (str2double (regexp (info, 'Pages:\s*(\d+)', 'tokens', 'once'){1}), numel (titles));
end
