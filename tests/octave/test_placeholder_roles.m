% Placeholders by role on real templates whose placeholder names say nothing
% to a script ("Shape 9", "PlaceHolder 2", names in Arabic, Polish and
% Chinese): the texts land in the boxes that describe reports, as LibreOffice
% renders them; an exact name wins over a role; and the preview deck of every
% real template validates, with one page per layout for a few of them.
1;   % a script: the helpers below must come first

function [layout, master, boxes] = layout_with (d, roles)
  % The first layout that has every role, and the roles' first boxes in cm.
  for k = 1:numel (d)
    have = arrayfun (@(x) x.Role, d(k).Placeholders, 'UniformOutput', false);
    base = regexprep (roles, ' \d+$', '');
    nth = cellfun (@(r) max ([1, str2double(regexp (r, '\d+$', 'match', 'once'))]), roles);
    if ! all (arrayfun (@(r) sum (strcmp (have, base{r})) >= nth(r), 1:numel (roles))), continue; end
    layout = d(k).Layout;  master = d(k).Master;
    boxes = zeros (numel (roles), 4);
    for r = 1:numel (roles)
      at = find (strcmp (have, base{r}));
      ph = d(k).Placeholders(at(nth(r)));
      boxes(r, :) = cellfun (@(v) str2double (strrep (v, 'cm', '')), {ph.X, ph.Y, ph.Width, ph.Height});
    end
    return;
  end
  error ('no layout has %s', strjoin (roles, ', '));
end

function words = pdf_words (pdf, page)
  % {text, xMid, yMid} of each word of a page, in points.
  [status, html] = system (sprintf ('pdftotext -f %d -l %d -bbox "%s" -', page, page, pdf));
  assert (status == 0);
  t = regexp (html, '<word xMin="([\d.]+)" yMin="([\d.]+)" xMax="([\d.]+)" yMax="([\d.]+)">([^<]*)</word>', 'tokens');
  words = cellfun (@(w) {w{5}, (str2double (w{1}) + str2double (w{3})) / 2, ...
                         (str2double (w{2}) + str2double (w{4})) / 2}, t, 'UniformOutput', false);
end

function check_place (words, token, box, what)
  % The word is on the page, and its middle inside the box (cm) give or take 0.3cm.
  hit = find (cellfun (@(w) strcmp (w{1}, token), words), 1);
  assert (! isempty (hit), '%s: "%s" is not on its page', what, token);
  cm = [words{hit}{2}, words{hit}{3}] * 2.54 / 72;
  if any (isnan (box)), return; end
  assert (cm(1) > box(1) - 0.3 && cm(1) < box(1) + box(3) + 0.3 && ...
          cm(2) > box(2) - 0.3 && cm(2) < box(2) + box(4) + 0.3, ...
          '%s: "%s" at (%.1f, %.1f)cm, outside its placeholder', what, token, cm(1), cm(2));
end

shared = fullfile (fileparts (mfilename ('fullpath')), '..', '..', '..', 'shared');
real = fullfile (shared, 'real-templates');
validator = fullfile (shared, 'ooxml-schemas', 'validate-pptx');
[noOffice, ~] = system ('command -v soffice && command -v pdftotext');
office = noOffice == 0 && isempty (getenv ('DECKFORGE_NO_OFFICE'));

% describe on the default template: a struct row per layout, placeholders with boxes in cm.
p = deckforge.ppt.Presentation (fullfile (pwd, 'default.pptx'));
d = p.describe ();
assert (isequal (fieldnames (d)', {'Master', 'Layout', 'Placeholders'}));
assert (numel (d) == numel (p.getLayoutNames (p.getMasterNames (){1})));
ph = d(strcmp ({d.Layout}, 'Title and Content')).Placeholders;
assert (isequal (fieldnames (ph)', {'Name', 'Role', 'Index', 'X', 'Y', 'Width', 'Height'}));
assert (isequal ({ph(1:2).Role}, {'Title', 'Content'}) && ph(2).Index == 1);
assert (! isempty (regexp (ph(1).Width, '^[\d.]+cm$', 'once')));

cases = {'gslides_074.pptx', 'ppt2013_dbconf-template-pl.potx', 'onlyoffice_new-ar.pptx', ...
         'ppt2016mac_one-text-zh.pptx', 'lo53_bug60993.pptx'};
if ! exist (real, 'dir'), cases = {}; end
decks = {};  placed = {};
for k = 1:numel (cases)
  out = fullfile (pwd, sprintf ('roles%d.pptx', k));
  p = deckforge.ppt.Presentation (out, fullfile (real, cases{k}));
  d = p.describe ();
  old = p.Children;
  for i = 1:numel (old), p.remove (old{i}); end
  [layout, master, boxes] = layout_with (d, {'Title', 'Subtitle'});
  s = p.add (layout, master);
  s.replace ('Title', sprintf ('Ti%dtle', k));
  s.replace ('Subtitle', sprintf ('Sub%dtitle', k));
  placed{end+1} = {1, sprintf('Ti%dtle', k), boxes(1, :); 1, sprintf('Sub%dtitle', k), boxes(2, :)};
  [layout, master, boxes] = layout_with (d, {'Title', 'Content'});
  s = p.add (layout, master);
  s.replace ('Title', sprintf ('Hea%dding', k));
  s.replace ('Content', {sprintf('Po%dint', k), {'deeper'}});
  assert (isempty (s.find ('Content 9')));
  placed{end+1} = {2, sprintf('Hea%dding', k), boxes(1, :); 2, sprintf('Po%dint', k), boxes(2, :)};
  if k == 2
    % The second of a role, in the layout's order; an exact name wins.
    [layout, master, boxes] = layout_with (d, {'Content', 'Content 2'});
    s = p.add (layout, master);
    s.replace ('Content 2', 'Rightside');
    s.replace ('Content', 'Leftside');
    box = deckforge.ppt.TextBox ();
    box.Name = 'Title';  box.X = '1cm';  box.Y = '1cm';  box.Width = '6cm';  box.Height = '2cm';
    s.add (box);
    s.replace ('Title', 'Boxed');
    assert (strcmp (box.Children{1}.Children{1}.Content, 'Boxed'));
    assert (isempty (s.find ('Title 1'){1}.Children));
    placed{end} = [placed{end}; {3, 'Leftside', boxes(1, :); 3, 'Rightside', boxes(2, :); 3, 'Boxed', [1 1 6 2]}];
  end
  p.close ();
  decks{end+1} = out;
end

% The preview of every real template validates and passes the compatibility
% check (against what the template itself holds); a few are rendered with one
% page per layout.
[passes, tests] = test (fullfile (fileparts (which ('deckforge.ppt.Presentation')), 'preview.m'), 'quiet');
assert (tests > 0 && passes == tests, 'the tests of preview.m fail');
files = dir (fullfile (real, '*.p*x'));
rendered = {'gslides_074.pptx', 'ppt2016mac_mecanon-2masters.potx', 'lo248_chartbar-it.pptx'};
layoutsOf = struct ();
pairs = '';
for k = 1:numel (files)
  template = fullfile (real, files(k).name);
  if strncmp (files(k).name, 'corrupt_', 8), continue; end
  out = deckforge.ppt.preview (template, fullfile (pwd, ['preview-' regexprep(files(k).name, '\.\w+$', '.pptx')]));
  if exist (validator, 'file')
    [status, output] = system (sprintf ('"%s" "%s" 2>&1', validator, out));
    assert (status == 0, 'preview of %s: %s', files(k).name, output);
  end
  pairs = [pairs, sprintf(' --template "%s" "%s"', template, out)];
  if any (strcmp (rendered, files(k).name))
    decks{end+1} = out;
    layoutsOf.(matlab.lang.makeValidName (out)) = numel (deckforge.ppt.Presentation (tempname (), template).describe ());
  end
end

checker = fullfile (fileparts (mfilename ('fullpath')), '..', 'tools', 'check-pptx');
[status, output] = system (sprintf ('python3 "%s"%s 2>&1', checker, pairs));
assert (status == 0 && ! isempty (strfind (output, ' 0 problems')), 'check-pptx:\n%s', output);

if office && ! isempty (decks)
  profile = ['file://' fullfile(pwd, 'lo-profile')];
  [status, output] = system (sprintf ('soffice -env:UserInstallation=%s --headless --convert-to pdf --outdir "%s" %s 2>&1', ...
                                      profile, pwd, sprintf ('"%s" ', decks{:})));
  assert (status == 0, 'soffice:\n%s', output);
  for k = 1:numel (decks)
    pdf = regexprep (decks{k}, '\.pptx$', '.pdf');
    [~, info] = system (sprintf ('pdfinfo "%s"', pdf));
    pages = str2double (regexp (info, 'Pages:\s*(\d+)', 'tokens', 'once'){1});
    key = matlab.lang.makeValidName (decks{k});
    if isfield (layoutsOf, key)
      assert (pages == layoutsOf.(key), '%s: %d pages', pdf, pages);
    end
  end
  for k = 1:numel (placed)
    deck = fix ((k + 1) / 2);
    pdf = fullfile (pwd, sprintf ('roles%d.pdf', deck));
    for r = 1:rows (placed{k})
      check_place (pdf_words (pdf, placed{k}{r, 1}), placed{k}{r, 2}, placed{k}{r, 3}, cases{deck});
    end
  end
end
