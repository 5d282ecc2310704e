% Properties of filters and messages as script code sees them.
f = deckforge.ppt.MessageFilter ();
assert (f.ErrorMessagesPass && f.WarningMessagesPass && f.ProgressMessagesPass);
assert (islogical (f.DebugMessagesPass) && ~f.DebugMessagesPass);

% Optional values: [] while unset, '' is a set (blocking) text.
assert (isempty (f.GlobalFilter) && isnumeric (f.GlobalFilter));
f.GlobalFilter = 'pass';
assert (strcmp (f.GlobalFilter, 'pass'));
f.GlobalFilter = '';
assert (ischar (f.GlobalFilter) && isempty (f.GlobalFilter));
f.GlobalFilter = [];
assert (isnumeric (f.GlobalFilter) && isempty (f.GlobalFilter));

% The logical adapter: numbers count, NaN is true, the first element decides.
f.DebugMessagesPass = NaN; assert (f.DebugMessagesPass);
f.DebugMessagesPass = [0 1]; assert (~f.DebugMessagesPass);

d = deckforge.ppt.MessageDispatcher.getTheDispatcher ();
f.SourceFilter = d;
assert (f.SourceFilter == d);
f.SourceFilter = [];
assert (isempty (f.SourceFilter));

% Messages: text, formats and the filter test.
m = deckforge.ppt.ErrorMessage ('a <b> c', d);
assert (strcmp (m.formatAsHTML (), ['<p>' d.Tag ' a <b> c</p>']));
f.ErrorMessagesPass = false;
assert (~m.passesFilter (f));
assert (isa (deckforge.ppt.DebugMessage ('x', d), 'deckforge.ppt.Message'));

% Non-ASCII text crosses intact.
t = deckforge.ppt.ProgressMessage ('Grüße – 東京', d);
assert (strcmp (t.Text, 'Grüße – 東京'));
d.Tag = 'Zähler';
assert (strcmp (d.Tag, 'Zähler'));
d.Tag = '';
