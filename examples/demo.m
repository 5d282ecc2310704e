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

  % Character formats run by run; colours, alignment and a link.
  format_slide (p.add ('Title Only'));

  % A plot printed without a display, fitted into a picture placeholder.
  plot_slide (p.add ('Title and Picture'), outDir);

  % A table from a cell array: bold header paragraphs over text and numbers.
  s = p.add ('Title and Table');
  s.replace ('Title', 'Tables from cell arrays');
  head = {'Fruit', 'Boxes', 'Price per kg'};
  for k = 1:numel (head)
    head{k} = deckforge.ppt.Paragraph (head{k});
    head{k}.Bold = true;
  end
  fruit = deckforge.ppt.Table ([head; {'apples', 120, 2.35; 'pears', 48, 3.1; 'plums', 7, NaN}]);
  fruit.StyleName = 'Accent Header';   % a table style of the template
  s.find ('Table'){1}.replace (fruit);

  % A table from a struct array: the field names make the header row.
  s = p.add ('Title and Content');
  s.replace ('Title', 'Tables from struct arrays');
  sales = struct ('Region', {'North', 'South', 'East'}, 'Q1', {1200, 950.5, 1310}, ...
                  'Q2', {1340, 1002.25, 1298});
  regions = deckforge.ppt.Table (sales);
  regions.StyleName = 'Light Lines';
  s.find ('Content'){1}.replace (regions);

  % A native chart: its numbers travel in a workbook inside the deck, so
  % PowerPoint's "Edit Data" works. The margin, on a second axis, is drawn
  % as a line over the revenue's columns.
  s = p.add ('Title and Content');
  s.replace ('Title', 'Charts from numbers');
  c = deckforge.ppt.Chart ('column', [1200 0.12; 1340 0.18; 1310 0.07], {'2023', '2024', '2025'});
  c.SeriesNames = {'Revenue', 'Margin'};
  c.SecondaryAxis = [false, true];
  c.Title = 'Revenue and margin';
  c.Legend = 'bottom';
  s.replace ('Content', c);

  p.close ();
  printf ('deck: %s\n', deck);

  if withPictures
    write_pictures (deck, outDir);
  end
end

function format_slide (s)
  % Formats are properties of runs, paragraphs and boxes; a run's own beat
  % those it inherits from its paragraph or box.
  s.replace ('Title', 'Formatted text');
  box = deckforge.ppt.TextBox ();
  box.Name = 'Formats';
  box.X = '0.75in';  box.Y = '1.6in';  box.Width = '11.8in';  box.Height = '2.6in';
  box.FontSize = '20pt';
  runs (box.add ('Runs can be '), {'bold', 'Bold', true}, ', ', {'italic', 'Italic', true}, ', ', ...
        {'underlined', 'Underline', 'single'}, ', ', {'twice', 'Underline', 'double'}, ' or ', ...
        {'struck through', 'Strike', 'single'}, '.');
  runs (box.add ('Subscripts and superscripts: H'), {'2', 'Subscript', true}, 'O, E = mc', ...
        {'2', 'Superscript', true}, '.');
  runs (box.add ('Any font and size: '), {'Liberation Serif', 'Font', 'Liberation Serif'}, ', ', ...
        {'DejaVu Sans Mono', 'Font', 'DejaVu Sans Mono'}, ', ', {'small', 'FontSize', '14pt'}, ...
        ' and ', {'large', 'FontSize', '30pt'}, '.');
  runs (box.add ('Colours by name or number: '), {'crimson', 'FontColor', 'crimson'}, ', ', ...
        {'teal', 'FontColor', 'teal'}, ', ', {'#FF8800', 'FontColor', '#FF8800'}, '.');
  link = box.add ('Links open in a browser: ');
  link.append (deckforge.ppt.ExternalLink ('https://octave.org', 'octave.org'));
  s.add (box);

  % Three boxes with a fill, each text placed differently inside.
  places = {'0.75in', 'left', 'top', 'lightyellow'; ...
            '4.8in', 'center', 'middle', 'lavender'; ...
            '8.85in', 'right', 'bottom', '#D8F0E0'};
  for k = 1:rows (places)
    box = deckforge.ppt.TextBox ();
    box.Name = sprintf ('Aligned %d', k);
    box.X = places{k, 1};  box.Y = '4.4in';  box.Width = '3.7in';  box.Height = '1.5in';
    box.BackgroundColor = places{k, 4};
    box.VAlign = places{k, 3};
    para = box.add (sprintf ('%s and %s on %s', places{k, 2:4}));
    para.HAlign = places{k, 2};
    s.add (box);
  end
end

function runs (para, varargin)
  % Appends runs to a paragraph: text as it is, {text, property, value} formatted.
  for k = 1:numel (varargin)
    item = varargin{k};
    if ischar (item)
      para.append (item);
    else
      run = para.append (item{1});
      run.(item{2}) = item{3};
    end
  end
end

function plot_slide (s, outDir)
  s.replace ('Title', 'Plots from Octave');
  % Without a display Octave plots through gnuplot, which warns that it is
  % not the toolkit of choice.
  warning ('off', 'Octave:gnuplot-graphics', 'local');
  if isempty (available_graphics_toolkits ())
    error ('demo: Octave has no graphics toolkit to plot with; install gnuplot (make setup)');
  end
  png = fullfile (outDir, 'demo-plot.png');
  f = figure ('visible', 'off');
  unwind_protect
    t = linspace (0, 4*pi, 200);
    lines = plot (t, sin (t), t, exp (-t/5) .* cos (2*t));
    set (lines, 'linewidth', 4);
    set (gca (), 'fontsize', 14, 'xgrid', 'on', 'ygrid', 'on', 'gridcolor', [0.85 0.85 0.85]);
    xlim ([0, 4*pi]);
    title ('sin t and a damped cosine');
    xlabel ('t');
    print (f, '-dpng', '-S1000,440', png);
  unwind_protect_cleanup
    close (f);
  end_unwind_protect
  % The image's pixel size, fitted into the placeholder and centred there.
  s.find ('Picture'){1}.replace (deckforge.ppt.Picture (png));
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
