% The markup of the every-feature deck, part by part, is what it was when
% every_feature_markup.sha256 was written: a change to the writers that is
% meant to leave the output alone must leave these bytes alone. Media parts
% are left out (their bytes come from Octave's image writers). After a change
% that alters the markup on purpose, run this with DECKFORGE_UPDATE_MARKUP=1
% to write the digests anew, and look at the difference it makes.
setenv ('SOURCE_DATE_EPOCH', '1700000000');
outDir = fullfile (pwd, 'deck');
if exist (outDir, 'dir'), confirm_recursive_rmdir (false); rmdir (outDir, 's'); end
mkdir (outDir);
deck = every_feature_deck (outDir);
partsDir = fullfile (outDir, 'parts');
names = sort (strrep (unzip (deck, partsDir), [partsDir filesep], ''));
names = names(! cellfun (@isempty, regexp (names, '\.(xml|rels)$')));
digests = cellfun (@(name) hash ('sha256', fileread (fullfile (partsDir, name))), names, 'UniformOutput', false);

here = fileparts (mfilename ('fullpath'));
reference = fullfile (here, 'every_feature_markup.sha256');
if ! isempty (getenv ('DECKFORGE_UPDATE_MARKUP'))
  fid = fopen (reference, 'w');
  for k = 1:numel (names)
    fprintf (fid, '%s  %s\n', digests{k}, names{k});
  end
  fclose (fid);
  printf ('wrote %d digests to %s\n', numel (names), reference);
  return;
end

lines = strsplit (strtrim (fileread (reference)), "\n");
fields = regexp (lines, '^(\S+)  (.+)$', 'tokens', 'once');
wantNames = cellfun (@(f) f{2}, fields, 'UniformOutput', false);
wantDigests = cellfun (@(f) f{1}, fields, 'UniformOutput', false);
missing = strcat ({'missing part: '}, setdiff (wantNames, names));
added = strcat ({'new part: '}, setdiff (names, wantNames));
[common, iHave, iWant] = intersect (names, wantNames);
changed = ! strcmp (digests(iHave), wantDigests(iWant));
problems = [missing, added, strcat({'changed markup: '}, common(changed))];
assert (isempty (problems), 'the every-feature deck differs from its reference:\n  %s', ...
        strjoin (problems, "\n  "));
