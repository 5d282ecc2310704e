% A plot printed without a display goes on a slide as a picture of its
% pixel size.
warning ('off', 'Octave:gnuplot-graphics');   % the only toolkit without a display
png = fullfile (pwd, 'plot.png');
f = figure ('visible', 'off');
unwind_protect
  x = linspace (0, 2*pi, 50);
  plot (x, sin (x), x, cos (x));
  title ('sin and cos');
  print (f, '-dpng', '-S640,400', png);
unwind_protect_cleanup
  close (f);
end_unwind_protect
info = picmeta (png);
assert ([info.Width, info.Height], [640, 400]);

out = fullfile (pwd, 'plot.pptx');
p = deckforge.ppt.Presentation (out);
s = p.add ('Title Only');
p.replace ('Title', 'A plot');
pic = s.add (deckforge.ppt.Picture (png));
assert ({pic.Width, pic.Height}, {'640px', '400px'});
p.close ();

% 9525 EMU to the pixel, and the image's bytes unchanged in the package.
unpacked = fullfile (pwd, 'unpacked');
confirm_recursive_rmdir (false);
if exist (unpacked, 'dir'), rmdir (unpacked, 's'); end   % a former run's
unzip (out, unpacked);
slide = fileread (fullfile (unpacked, 'ppt', 'slides', 'slide1.xml'));
assert (! isempty (strfind (slide, '<a:ext cx="6096000" cy="3810000"/>')), slide);
media = glob (fullfile (unpacked, 'ppt', 'media', '*.png'));
assert (numel (media) == 1);
fid = fopen (png);  original = fread (fid, Inf, 'uint8=>uint8');  fclose (fid);
fid = fopen (media{1});  copied = fread (fid, Inf, 'uint8=>uint8');  fclose (fid);
assert (isequal (copied, original));
