% Image files of each kind as pictures: sizes through picmeta, the content
% types they are packaged with, and files that can't be measured.
imwrite (uint8 (repmat (0:199, 50, 1)), 'strip.tif');
imwrite (uint8 (repmat (0:99, 30, 1)), 'real.png');
copyfile ('real.png', 'png-named.jpg');
fid = fopen ('shape.svg', 'w');
fputs (fid, '<svg xmlns="http://www.w3.org/2000/svg" width="120" height="80"><rect width="120" height="80" fill="red"/></svg>');
fclose (fid);
% More pixels across than a picture's size can be written with.
imwrite (false (2, 300000), 'wide.png');
fclose (fopen ('empty.png', 'w'));
bytes = fileread ('real.png');
fid = fopen ('cut.png', 'w');  fwrite (fid, bytes(1:40));  fclose (fid);
fid = fopen ('notes.xyz', 'w');  fputs (fid, 'no image');  fclose (fid);

tif = deckforge.ppt.Picture ('strip.tif');
assert ({tif.Width, tif.Height}, {'200px', '50px'});
named = deckforge.ppt.Picture ('png-named.jpg');   % the content decides
assert ({named.Width, named.Height}, {'100px', '30px'});
svg = deckforge.ppt.Picture ('shape.svg');           % by its width and height
assert ({svg.Width, svg.Height}, {'120px', '80px'});
wide = deckforge.ppt.Picture ('wide.png');
assert ({wide.Width, wide.Height}, {'300px', '300px'});

% The host's own error passes through, naming the file; nothing is left
% half made and Octave carries on.
for bad = {'missing.png', 'empty.png', 'cut.png', 'notes.xyz'}
  try
    deckforge.ppt.Picture (bad{1});
    error ('test:noError', 'no error for %s', bad{1});
  catch err
    assert (! strcmp (err.identifier, 'test:noError'), err.message);
    assert (! isempty (strfind (err.message, bad{1})), err.message);
  end
end

% Image arrays as imread gives them become PNG files of the same pixels:
% the class sets the scale, a third dimension of 3 the colours.
rgb = uint8 (cat (3, repmat (0:255, 64, 1), repmat ((0:63)', 1, 256), 128 * ones (64, 256)));
deep = uint16 (1000 * magic (4));
grey = [0, 0.5; 1, 2];                               % past 1 is full intensity
arrays = {rgb, deep, grey, true(5, 7), uint8(7)};          % a uint8 scalar is no figure handle
expected = {rgb, deep, uint8([0, 128; 255, 255]), true(5, 7), uint8(7)};
for k = 1:numel (arrays)
  pic = deckforge.ppt.Picture (arrays{k});
  assert ({pic.Width, pic.Height}, {sprintf('%dpx', columns (arrays{k})), sprintf('%dpx', rows (arrays{k}))});
  back = imread (pic.Path);
  assert (isequal (cast (back, class (expected{k})), expected{k}), 'array %d comes back changed', k);
end
image = deckforge.ppt.Picture (rgb);
for bad = {int8(ones(3)), ones(3,3,2), {1}, []}
  expect_error (@() deckforge.ppt.Picture (bad{1}), 'deckforge:ppt_error:invalidImageArg');
end

out = fullfile (pwd, 'files.pptx');
p = deckforge.ppt.Presentation (out);
s = p.add ('Blank');
for pic = {tif, named, svg, wide, image}
  s.add (pic{1});
end
p.close ();
unpacked = fullfile (pwd, 'unpacked');
confirm_recursive_rmdir (false);
if exist (unpacked, 'dir'), rmdir (unpacked, 's'); end
unzip (out, unpacked);
types = fileread (fullfile (unpacked, '[Content_Types].xml'));
% The bytes decide: the PNG named ".jpg" is packaged as a PNG.
for t = {'Extension="tif" ContentType="image/tiff"', 'Extension="svg" ContentType="image/svg+xml"', ...
         'Extension="png" ContentType="image/png"'}
  assert (! isempty (strfind (types, t{1})), 'no %s in %s', t{1}, types);
end
assert (isempty (strfind (types, 'image/jpeg')), types);
check_deck (out);
