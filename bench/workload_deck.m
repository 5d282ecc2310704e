function workload_deck (n, out, png, charts)
  % Builds the benchmark deck of n slides into `out` on the default
  % template, as a user's script would, and prints two lines for the driver
  % (bench/run_workload): Octave's resident memory before the first
  % deckforge call, and the peak at the end, in kB.
  %   octave --eval "addpath('<build>', 'bench'); workload_deck(1000, '/tmp/w.pptx')"
  % The picture on every tenth slide is `png`, a 640 x 480 PNG. Without it
  % the script draws one first; the driver makes it before timing, as a
  % user's pictures exist before the script that places them. With
  % `charts` true, every tenth slide also gets a native column chart of
  % 4 series by 6 categories, with its embedded workbook.
  [rss0, ~] = memory_kb ();
  p = deckforge.ppt.Presentation (out);
  p.open ();
  s = p.add ('Title Slide');
  s.replace ('Title', 'Benchmark deck');
  s.replace ('Subtitle', sprintf ('%d slides', n));

  header = cell (1, 6);
  for c = 1:6
    header{c} = deckforge.ppt.Paragraph (sprintf ('Col %d', c));
    header{c}.Bold = true;
  end
  if nargin < 4
    charts = false;
  end
  if nargin < 3 || isempty (png)
    png = [tempname() '.png'];
    imwrite (uint8 (kron (magic (8), ones (60, 80))), png);   % 640 x 480 pixels
    cleanup = onCleanup (@() delete (png));
  end

  for i = 2:n
    s = p.add ('Title and Content');
    s.replace ('Title', sprintf ('Slide %d', i));

    mixed = deckforge.ppt.Paragraph ();
    b = deckforge.ppt.Text ('Bold run');
    b.Bold = true;
    mixed.append (b);
    mixed.append (deckforge.ppt.Text (' and '));
    it = deckforge.ppt.Text ('italic run');
    it.Italic = true;
    mixed.append (it);

    coloured = deckforge.ppt.Text ('Coloured run at 20pt');
    coloured.FontColor = '#1F77B4';
    coloured.FontSize = '20pt';
    colouredPara = deckforge.ppt.Paragraph ();
    colouredPara.append (coloured);

    linkPara = deckforge.ppt.Paragraph ();
    linkPara.append (deckforge.ppt.ExternalLink (sprintf ('https://example.com/%d', i), ...
                                                 sprintf ('Link to example.com/%d', i)));
    level2 = deckforge.ppt.Paragraph ('Second outline level');
    level2.Level = 2;

    s.replace ('Content', {sprintf('Plain paragraph on slide %d.', i), mixed, colouredPara, linkPara, level2});

    if mod (i, 5) == 0
      cells = [header; num2cell(round (100 * rand (9, 6)) / 100)];
      cells(2:end, :) = cellfun (@(v) sprintf ('%.2f', v), cells(2:end, :), 'UniformOutput', false);
      t = deckforge.ppt.Table (cells);
      t.X = '0.5in';
      t.Y = '3.5in';
      t.Width = '9in';
      t.Height = '3.5in';
      s.add (t);
    end
    if mod (i, 10) == 0
      pic = deckforge.ppt.Picture (png);
      pic.X = '6in';
      pic.Y = '1.5in';
      pic.Width = '3.2in';
      pic.Height = '2.4in';
      s.add (pic);
    end
    if charts && mod (i, 10) == 3
      ch = deckforge.ppt.Chart ('column', round (100 * rand (6, 4)), {'Jan', 'Feb', 'Mar', 'Apr', 'May', 'Jun'});
      ch.Title = sprintf ('Chart on slide %d', i);
      ch.SeriesNames = {'North', 'South', 'East', 'West'};
      ch.X = '5in';
      ch.Y = '1.5in';
      ch.Width = '4.5in';
      ch.Height = '3in';
      s.add (ch);
    end
  end
  p.close ();
  [~, hwm] = memory_kb ();
  printf ('rss_start_kb %d\npeak_kb %d\n', rss0, hwm);
end

function [rss, hwm] = memory_kb ()
  text = fileread ('/proc/self/status');
  rss = str2double (regexp (text, 'VmRSS:\s*(\d+)', 'tokens', 'once'){1});
  hwm = str2double (regexp (text, 'VmHWM:\s*(\d+)', 'tokens', 'once'){1});
end
