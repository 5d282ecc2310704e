function octave_bench (nSlides)
  % Builds a deck of "Title and Content" slides from Octave on the default
  % template and prints wall time, the cost of single scripted calls beside
  % Octave's own floor for a classdef call of the same shape, and peak
  % memory above Octave's start. Not a test; run it by hand:
  %   octave --no-gui --norc --eval "addpath('<build>', 'bench'); octave_bench"
  if nargin < 1, nSlides = 1000; end
  [rss0, hwm0] = memory_kb ();

  out = [tempname() '.pptx'];
  cleanup = onCleanup (@() delete_if_there (out));
  t0 = tic ();
  p = deckforge.ppt.Presentation (out);
  p.open ();
  tOpen = toc (t0);
  t1 = tic ();
  for k = 1:nSlides
    s = p.add ('Title and Content');
    s.replace ('Title', sprintf ('Slide %d', k));
    s.replace ('Content', {'First point', {'detail a', 'detail b'}, 'Second point'});
  end
  tFill = toc (t1);
  t2 = tic ();
  p.close ();
  tClose = toc (t2);
  tAll = toc (t0);
  [rss1, hwm1] = memory_kb ();
  info = dir (out);

  printf ('deckforge from Octave: %d "Title and Content" slides, title and a two-level list each\n', nSlides);
  printf ('  wall time        %8.2f s  (open %.2f s, slides %.2f s, close %.2f s)\n', tAll, tOpen, tFill, tClose);
  printf ('  per slide        %8.3f ms (add + 2 replace by name, scripted)\n', 1e3 * tFill / nSlides);
  printf ('  output           %8.1f KB\n', info.bytes / 1024);
  printf ('  memory above start: peak %.1f MB, now %.1f MB (VmHWM %.1f -> %.1f MB, VmRSS %.1f -> %.1f MB)\n', ...
          (hwm1 - rss0) / 1024, (rss1 - rss0) / 1024, hwm0 / 1024, hwm1 / 1024, rss0 / 1024, rss1 / 1024);

  % Single calls, each beside an empty classdef member of the same shape: a
  % class that derives from handle directly, as the generated classes do.
  n = 2000;
  floorDir = write_floor_classes (0);
  addpath (floorDir);
  removeFloor = onCleanup (@() remove_dir (floorDir));
  box = deckforge.ppt.TextBox ();
  floor = bench_floor_0 ();
  printf ('  per scripted call (mean of %d)          deckforge    empty classdef\n', n);
  report ('property set  box.Name = ''x''', ...
          time_calls (n, @() set_name (box)), time_calls (n, @() set_name (floor)));
  report ('method call   box.add({})  (no result)', ...
          time_calls (n, @() box.add ({})), time_calls (n, @() floor.replace ({})));
  report ('method call   box.replace(''x'')', ...
          time_calls (n, @() box.replace ('x')), time_calls (n, @() floor.replace ('x')));
  report ('constructor   Paragraph(''x'')', ...
          time_calls (n, @() deckforge.ppt.Paragraph ('x')), time_calls (n, @() bench_floor_0 ('x')));
  printf ('    (the timing loop itself: %.1f us a call)\n', 1e6 * time_calls (n, @() 0));
  printf ('    a method that returns a new object pays for that object''s construction too\n');
end

function report (label, ours, floor)
  printf ('    %-38s %8.1f us  %8.1f us\n', label, 1e6 * ours, 1e6 * floor);
end

function set_name (obj)
  obj.Name = 'x';
end

function t = time_calls (n, fn)
  fn ();   % first call loads and compiles what it needs
  t0 = tic ();
  for k = 1:n
    fn ();
  end
  t = toc (t0) / n;
end

function [rss, hwm] = memory_kb ()
  text = fileread ('/proc/self/status');
  rss = field_kb (text, 'VmRSS');
  hwm = field_kb (text, 'VmHWM');
end

function kb = field_kb (text, name)
  tok = regexp (text, [name ':\s*(\d+)\s*kB'], 'tokens', 'once');
  kb = str2double (tok{1});
end

% bench_floor_0 < handle, ..., bench_floor_<depth> < bench_floor_<depth-1>;
% the last has a dependent Name and a method replace, all with empty bodies.
function dir = write_floor_classes (depth)
  dir = tempname ();
  mkdir (dir);
  for k = 0:depth
    name = sprintf ('bench_floor_%d', k);
    if k == 0
      head = sprintf ('classdef %s < handle', name);
      ctor = '';
    else
      head = sprintf ('classdef %s < bench_floor_%d', name, k - 1);
      ctor = sprintf ('      obj = obj@bench_floor_%d (struct (''base'', true));\n', k - 1);
    end
    members = '';
    if k == depth
      members = ['  properties (Dependent)\n    Name\n  end\n' ...
                 '  methods\n    function value = get.Name (obj)\n      value = '''';\n    end\n' ...
                 '    function set.Name (obj, value)\n    end\n' ...
                 '    function varargout = replace (obj, varargin)\n      varargout = {};\n    end\n  end\n'];
    end
    fid = fopen (fullfile (dir, [name '.m']), 'w');
    fprintf (fid, ['%s\n' members '  methods\n    function obj = %s (varargin)\n' ctor '    end\n  end\nend\n'], ...
             head, name);
    fclose (fid);
  end
end

function remove_dir (dir)
  rmpath (dir);
  confirm_recursive_rmdir (false, 'local');
  rmdir (dir, 's');
end

function delete_if_there (f)
  if exist (f, 'file'), delete (f); end
end
