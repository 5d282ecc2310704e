% The "Message" event: listeners run inside dispatch, see what passes the
% dispatcher's live filter, and stop when disabled or deleted.
d = deckforge.ppt.MessageDispatcher.getTheDispatcher ();
filter = d.Filter;
collect_messages ();
listener = addlistener (d, 'Message', @collect_messages);
assert (isa (listener, 'deckforge.Listener'));

d.dispatch (deckforge.ppt.ErrorMessage ('first', d));
d.dispatch (deckforge.ppt.DebugMessage ('hidden', d));
got = collect_messages ();
assert (numel (got) == 1);
assert (isa (got{1}, 'deckforge.ppt.ErrorMessage'));
assert (strcmp (got{1}.Text, 'first'));
assert (got{1}.Source == d);

% Debug messages pass once the live filter says so; making a node reports it.
filter.DebugMessagesPass = true;
p = deckforge.ppt.Presentation ();
got = collect_messages ();
texts = cellfun (@(m) m.Text, got, 'UniformOutput', false);
assert (any (cellfun (@(m) isa (m, 'deckforge.ppt.DebugMessage'), got)), 'no debug message: %s', strjoin (texts, ' | '));
assert (any (~cellfun (@isempty, strfind (texts, p.Tag))), 'no message names %s', p.Tag);
clear p;
got = collect_messages ();
assert (numel (got) >= 1, 'destroying the presentation reported nothing');
filter.DebugMessagesPass = false;

listener.Enabled = false;
d.dispatch (deckforge.ppt.ErrorMessage ('paused', d));
assert (isempty (collect_messages ()));
listener.Enabled = true;
delete (listener);
d.dispatch (deckforge.ppt.ErrorMessage ('gone', d));
assert (isempty (collect_messages ()));
