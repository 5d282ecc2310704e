function deck = demo (outDir, withPictures)
  % A small deck on the default template: demo ([outDir [, withPictures]])
  if nargin < 1 || isempty (outDir), outDir = fullfile (pwd, 'out'); end
  if nargin < 2, withPictures = true; end
  if ~exist (outDir, 'dir'), mkdir (outDir); end
  deck = fullfile (outDir, 'demo.pptx');

  p = deckforge.ppt.Presentation (deck);           % default template
  s = p.add ('Title Slide');
  s.replace ('Title', 'deckforge');
  s.replace ('Subtitle', 'PowerPoint decks from GNU Octave');

  s = p.add ('Title and Content');
  s.replace ('Title', 'Why script a deck?');
  s.replace ('Content', {'The same report every week', ...
                         {'numbers change, the layout stays', 'no copy and paste'}, ...
                         'Your template, your fonts', ...
                         {'slides come from its layouts', {'placeholders filled by name'}}});

  % A paragraph made of runs, one of them a hyperlink.
  s = p.add ('Title and Content');
  s.replace ('Title', 'How it works');
  s.replace ('Content', {'Open a template, add slides by layout name', ...
                         'Fill placeholders: text, lists, paragraphs', ...
                         {'a nested cell array is one level deeper'}});
  link = deckforge.ppt.Paragraph ('File format: ');
  link.append (deckforge.ppt.ExternalLink ('https://www.ecma-international.org/publications-and-standards/standards/ecma-376/', 'ECMA-376'));
  content = s.find ('Content'){1};
  content.add (link);

  s = p.add ('Section Header');
  s.replace ('Title', 'Free text boxes');
  s.replace ('Text', 'Placed anywhere, in inches or centimetres');

  % Text boxes positioned by hand; lengths carry their units.
  s = p.add ('Title Only');
  s.replace ('Title', 'Boxes where you want them');
  positions = {'1in', '2in', 'one inch from the left, two down'; ...
               '18cm', '8cm', 'eighteen centimetres across, eight down'; ...
               '1in', '5in', 'any unit: px, in, cm, mm, pt'};
  for k = 1:rows (positions)
    box = deckforge.ppt.TextBox ();
    box.Name = sprintf ('Note %d', k);
    box.X = positions{k, 1};
    box.Y = positions{k, 2};
    box.Width = '4.5in';
    box.Height = '0.8in';
    box.add (positions{k, 3});
    s.add (box);
  end

  p.close ();
  printf ('deck: %s\n', deck);

  if withPictures
    write_pictures (deck, outDir);
  end
end

function write_pictures (deck, outDir)
  % PNGs of the slides, through LibreOffice and poppler.
  if system ('command -v soffice >/dev/null 2>&1 && command -v pdftoppm >/dev/null 2>&1') ~= 0
    printf ('pictures: skipped (soffice or pdftoppm not installed)\n');
    return;
  end
  % A profile of its own, so that a LibreOffice already running elsewhere
  % doesn't take the job over.
  profile = tempname ();
  cmd = sprintf (['soffice -env:UserInstallation=file://%s --headless --convert-to pdf ' ...
                  '--outdir "%s" "%s" >/dev/null 2>&1'], profile, outDir, deck);
  status = system (cmd);
  confirm_recursive_rmdir (false, 'local');
  if exist (profile, 'dir'), rmdir (profile, 's'); end
  [~, base] = fileparts (deck);
  pdf = fullfile (outDir, [base '.pdf']);
  if status ~= 0 || ~exist (pdf, 'file')
    printf ('pictures: LibreOffice could not convert %s\n', deck);
    return;
  end
  prefix = fullfile (outDir, [base '-slide']);
  old = glob ([prefix '-*.png']);
  for k = 1:numel (old), delete (old{k}); end
  if system (sprintf ('pdftoppm -png -r 60 "%s" "%s"', pdf, prefix)) ~= 0
    printf ('pictures: pdftoppm failed on %s\n', pdf);
    return;
  end
  pngs = glob ([prefix '-*.png']);
  printf ('pictures: %d slides as %s-*.png\n', numel (pngs), prefix);
end
