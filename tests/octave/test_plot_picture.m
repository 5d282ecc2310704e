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

% The figure itself, hidden, goes on slides as SVG with a PNG beside it:
% added, in a content placeholder by name and through the placeholder, and
% an SVG file whose size comes from its viewBox.
f = figure ('visible', 'off');
unwind_protect
  plot (x, sin (x), x, cos (x));
  title ('Waves');  xlabel ('angle');  ylabel ('value');  legend ('sin', 'cos');
  byFigure = deckforge.ppt.Picture (f);
  byAxes = deckforge.ppt.Picture (gca);
  expect_error (@() deckforge.ppt.Picture (max (findall (0)) + 1000), 'deckforge:ppt_error:invalidFigureHandle');
unwind_protect_cleanup
  close (f);
end_unwind_protect
expect_error (@() deckforge.ppt.Picture (f), 'deckforge:ppt_error:invalidFigureHandle');
w = str2double (strrep (byFigure.Width, 'in', ''));
h = str2double (strrep (byFigure.Height, 'in', ''));
assert (w / h, 4 / 3, 0.01);                   % Octave's default paper position
assert (byFigure.Resolution, 200);
byFigure.Resolution = 96;
expect_error (@() set_property (byFigure, 'Resolution', -1), 'deckforge:ppt_error:invalidPropertyValue');
fid = fopen ('wide.svg', 'w');
fputs (fid, ['<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 400 100">' ...
             '<rect width="400" height="100" fill="teal"/></svg>']);
fclose (fid);
file = deckforge.ppt.Picture (fullfile (pwd, 'wide.svg'));
assert ({file.Width, file.Height}, {'400px', '100px'});

out = fullfile (pwd, 'figures.pptx');
p = deckforge.ppt.Presentation (out);
s = p.add ('Title Only');
s.replace ('Title', 'Added');
byFigure.Y = '1.5in';
s.add (byFigure);
s = p.add ('Title and Content');
s.replace ('Title', 'By name');
s.replace ('Content', byAxes);
s = p.add ('Title and Content');
s.replace ('Title', 'Through the placeholder');
s.find ('Content'){1}.replace (byAxes);
s = p.add ('Title Only');
s.replace ('Title', 'A file');
file.Y = '2in';
s.add (file);
p.close ();
printed = byFigure.Path;
clear byFigure byAxes p s;                     % the printed files go with the last holder
assert (! exist (printed, 'file'));

unpacked = fullfile (pwd, 'figures');
confirm_recursive_rmdir (false);
if exist (unpacked, 'dir'), rmdir (unpacked, 's'); end
unzip (out, unpacked);
for k = 1:4
  slide = fileread (fullfile (unpacked, 'ppt', 'slides', sprintf ('slide%d.xml', k)));
  rels = fileread (fullfile (unpacked, 'ppt', 'slides', '_rels', sprintf ('slide%d.xml.rels', k)));
  ids = regexp (slide, '<a:blip r:embed="(\w+)"><a:extLst><a:ext uri="\{96DAC541-7B7A-43D3-8B79-37D633B846F1\}"><asvg:svgBlip r:embed="(\w+)"', 'tokens', 'once');
  assert (numel (ids) == 2, 'slide %d has no PNG with an SVG beside it', k);
  assert (! isempty (regexp (rels, ['Id="' ids{1} '"[^>]*\.png"'], 'once')), 'slide %d: %s', k, rels);
  assert (! isempty (regexp (rels, ['Id="' ids{2} '"[^>]*\.svg"'], 'once')), 'slide %d: %s', k, rels);
end
svg = fileread (fullfile (unpacked, 'ppt', 'media', 'image2.svg'));
assert (! isempty (regexp (svg, '<text[^>]*>(<tspan[^>]*>)?Waves<', 'once')));   % the title stays text
ext = regexp (fileread (fullfile (unpacked, 'ppt', 'slides', 'slide4.xml')), '</p:blipFill>.*?<a:ext cx="(\d+)" cy="(\d+)"', 'tokens', 'once');
assert (str2double (ext(:))', [400, 100] * 9525);
% Figure PNGs at 96 dots per inch across the picture's width.
info = imfinfo (fullfile (unpacked, 'ppt', 'media', 'image1.png'));
assert (info.Width, round (w * 96));

check_deck (out);
[noOffice, ~] = system ('command -v soffice && command -v pdftotext');
if noOffice == 0 && isempty (getenv ('DECKFORGE_NO_OFFICE'))
  profile = ['file://' fullfile(pwd, 'lo-profile')];
  [status, output] = system (sprintf ('soffice -env:UserInstallation=%s --headless --convert-to pdf --outdir "%s" "%s" 2>&1', ...
                                      profile, pwd, out));
  assert (status == 0, 'soffice:\n%s', output);
  [~, shown] = system (sprintf ('pdftotext "%s" -', strrep (out, '.pptx', '.pdf')));
  assert (! isempty (strfind (shown, 'Through the placeholder')));
end
