% The example deck builds from scratch and passes the schema and compatibility checks.
here = fileparts (mfilename ('fullpath'));
root = fileparts (fileparts (here));
warning ('off', 'Octave:shadowed-function');   % the example's name is Octave's demo
addpath (fullfile (root, 'examples'));
deck = demo (fullfile (pwd, 'out'), false);
assert (exist (deck, 'file') == 2, 'no deck at %s', deck);

% The slides, in the order the example adds them.
p = deckforge.ppt.Presentation (fullfile (pwd, 'reread.pptx'), deck);
p.open ();
slides = p.Children;
layouts = cellfun (@(s) s.Layout, slides, 'UniformOutput', false);
assert (isequal (layouts, {'Title Slide', 'Title and Content', 'Title and Content', ...
                           'Section Header', 'Title Only', 'Title Only', 'Title and Picture', ...
                           'Title and Table', 'Title and Content', 'Title and Content'}), ...
        strjoin (layouts, ', '));

% The formats reach the markup from script properties, and the plot is the
% picture in place of the placeholder.
unpacked = fullfile (pwd, 'unpacked');
confirm_recursive_rmdir (false);
if exist (unpacked, 'dir'), rmdir (unpacked, 's'); end
unzip (deck, unpacked);
xml = cellfun (@fileread, glob (fullfile (unpacked, 'ppt', 'slides', 'slide*.xml')), 'UniformOutput', false);
formats = xml{! cellfun (@isempty, strfind (xml, 'Formatted text'))};
for want = {' b="1"', ' u="dbl"', ' strike="sngStrike"', ' baseline="-25000"', ' baseline="30000"', ...
            '<a:latin typeface="DejaVu Sans Mono"/>', ' sz="3000"', '<a:srgbClr val="FF8800"/>', ...
            '<a:srgbClr val="FFFFE0"/>', ' anchor="b"', ' algn="r"', '<a:hlinkClick r:id="'}
  assert (! isempty (strfind (formats, want{1})), 'no %s on the format slide', want{1});
end
pictureSlide = xml{! cellfun (@isempty, strfind (xml, 'Plots from Octave'))};
assert (! isempty (regexp (pictureSlide, '<p:pic>.*<a:blip r:embed="rId\d+"/>', 'once')));
info = picmeta (fullfile (pwd, 'out', 'demo-plot.png'));
assert ([info.Width, info.Height], [1000, 440]);

check_deck (deck);
