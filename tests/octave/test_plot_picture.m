% A plot printed without a display goes on a slide as a picture of its
% pixel size, measured by the host's picmeta.
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
