% Every constructor, method and property setter of every generated class,
% read from the class files themselves, called with values of the wrong
% kind, on live objects, on deleted ones and after the presentation was
% closed. A call may succeed; when it fails, its error must carry an
% identifier, and Octave must live to the end. Constructors are called
% through handles: Octave 7's feval of a package subclass's name with an
% object argument loses the class for the rest of the session.
folder = fileparts (which ('deckforge.ppt.Text'));
files = dir (fullfile (folder, '*.m'));
deleted = deckforge.ppt.Paragraph ('gone');
delete (deleted);
bad = {{}, {[]}, {''}, {NaN}, {-1}, {{}}, {struct()}, {@sin}, {deleted}, {'x', NaN}, {1, 2, 3}, ...
       {repmat('a', 3, 3)}, {int8(5)}, {{deleted, NaN}}};
skip = {'delete', 'disp', 'display', 'eq', 'ne', 'isequal', 'isvalid', 'addlistener'};

out = fullfile (pwd, 'misuse.pptx');
p = deckforge.ppt.Presentation (out);
p.open ();
s = p.add ('Title and Content');
pool = [{p, s}, s.Children];
classes = struct ('name', {}, 'make', {}, 'methods', {}, 'setters', {});
for f = files'
  name = ['deckforge.ppt.' f.name(1:end-2)];
  text = fileread (fullfile (folder, f.name));
  methods = regexp (text, 'function (?:\w+\s*=\s*)?(\w+)\s*\(obj', 'tokens');
  setters = regexp (text, 'function set\.(\w+)\s*\(', 'tokens');
  classes(end+1) = struct ('name', name, 'make', str2func (name), ...
                           'methods', {setdiff([methods{:}], skip)}, 'setters', {[setters{:}]});
  try
    pool{end+1} = classes(end).make ();
  catch
  end
end

calls = 0;
function count = probe (fn, what)
  count = 1;
  try
    fn ();
  catch err
    assert (! isempty (err.identifier), 'no identifier from %s: %s', what, err.message);
  end
end

for round = {'open', 'closed', 'deleted'}
  if strcmp (round{1}, 'closed')
    p.close ();
  elseif strcmp (round{1}, 'deleted')
    for k = 1:numel (pool)
      delete (pool{k});
    end
  end
  for c = classes
    live = pool(cellfun (@(o) isa (o, c.name), pool));
    for a = bad
      args = a{1};
      if strcmp (round{1}, 'open')
        calls += probe (@() c.make (args{:}), [c.name ' constructor']);
      end
      if isempty (live), continue; end
      obj = live{1};
      for m = c.methods
        calls += probe (@() obj.(m{1}) (args{:}), [c.name '.' m{1} ' (' round{1} ')']);
      end
      for prop = c.setters
        if numel (args) == 1
          calls += probe (@() set_property (obj, prop{1}, args{1}), [c.name '.' prop{1} ' (' round{1} ')']);
        end
      end
    end
  end
end
assert (calls > 1000, 'only %d calls made', calls);
