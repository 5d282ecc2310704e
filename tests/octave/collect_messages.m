function out = collect_messages (src, evt)
  % Listener that records each message; collect_messages() hands the record
  % over and starts a new one.
  persistent got
  if isempty (got)
    got = {};
  end
  if nargin == 0
    out = got;
    got = {};
    return;
  end
  assert (isa (src, 'deckforge.ppt.MessageDispatcher'));
  assert (isa (evt, 'deckforge.ppt.MessageEventData'));
  got{end+1} = evt.Message;
end
