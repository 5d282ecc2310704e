classdef ScriptText < deckforge.ppt.Text
  % A script subclass of a library class, for test_identity.
  methods
    function obj = ScriptText (text)
      obj = obj@deckforge.ppt.Text (text);
    end
  end
end
